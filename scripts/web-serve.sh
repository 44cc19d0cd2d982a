#!/usr/bin/env bash
# Serves the browser edition that scripts/web.sh built, at http://localhost:8000/ (or PORT).
set -euo pipefail
cd "$(dirname "$0")/../build/web/site" 2>/dev/null || {
    echo "No page in build/web/site: run scripts/web.sh first." >&2
    exit 1
}
exec python3 -m http.server "${1:-8000}" --bind 127.0.0.1

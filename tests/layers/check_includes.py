#!/usr/bin/env python3
"""Fails when a file includes a header of a library that its target does not link.

Reads the targets the build wrote (layers.txt: name|type|folder|sources|links|interface links) and
every `#include "folder/..."` of every target's sources, of the headers they include that belong
to no library, and, for a library, of the headers in its folder. A header belongs to the library whose folder is the longest prefix of its path; a target
may include its own headers and those of the libraries it links, directly or through their
public links.

    check_includes.py BUILD/layers.txt SOURCE_DIR
"""
import os
import re
import sys

INCLUDE = re.compile(r'\s*#\s*include\s+"([^"]+)"')
GENERATOR = re.compile(r'^\$<LINK_ONLY:(.*)>$')


def cmake_list(text):
    if text.endswith('-NOTFOUND') or not text:
        return []
    return [GENERATOR.sub(r'\1', item) for item in text.split(';') if item]


def main(layers_file, root):
    root = os.path.realpath(root)
    targets = {}
    for line in open(layers_file, encoding='utf-8'):
        name, kind, folder, sources, links, interface = line.rstrip('\n').split('|')
        targets[name] = {
            'library': kind.endswith('LIBRARY'),
            'folder': os.path.relpath(os.path.realpath(folder), root),
            'sources': [os.path.normpath(os.path.join(folder, s)) for s in cmake_list(sources)],
            'links': cmake_list(links),
            'interface': cmake_list(interface),
        }
    # A folder holds one library; executables beside it may share the folder.
    library_of_folder = {t['folder']: n for n, t in targets.items() if t['library']}

    def reachable(name):
        seen, todo = {name}, list(targets[name]['links'])
        while todo:
            link = todo.pop()
            if link in targets and link not in seen:
                seen.add(link)
                todo.extend(targets[link]['interface'])
        return seen

    def owner(path):
        folder = os.path.dirname(path)
        while folder:
            if folder in library_of_folder:
                return library_of_folder[folder]
            folder = os.path.dirname(folder)
        return None

    faults = []
    for name, target in sorted(targets.items()):
        files = [s for s in target['sources'] if s.endswith(('.cpp', '.h'))]
        if target['library']:
            folder = os.path.join(root, target['folder'])
            files += [os.path.join(folder, f) for f in sorted(os.listdir(folder))
                      if f.endswith('.h')]
        allowed = reachable(name)
        # A header of no library (a test's helper) is read as part of the target including it.
        seen = set(files)
        while files:
            path = files.pop()
            with open(path, encoding='utf-8', errors='replace') as source:
                for number, line in enumerate(source, 1):
                    match = INCLUDE.match(line)
                    if not match:
                        continue
                    library = owner(match.group(1))
                    helper = os.path.join(root, match.group(1))
                    if library is None and os.path.isfile(helper) and helper not in seen:
                        seen.add(helper)
                        files.append(helper)
                    elif library is not None and library not in allowed:
                        faults.append(f'{os.path.relpath(path, root)}:{number}: includes '
                                      f'"{match.group(1)}" of {library}, which {name} '
                                      'does not link')
    for fault in faults:
        print(fault)
    checked = sum(1 for t in targets.values())
    print(f'{checked} targets checked, {len(faults)} includes across a missing link')
    return 1 if faults else 0


if __name__ == '__main__':
    sys.exit(main(sys.argv[1], sys.argv[2]))

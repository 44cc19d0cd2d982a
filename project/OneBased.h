// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cassert>
#include <cstddef>

// A fixed array indexed 1..N, as the month table and the region list are numbered.
template <class T, std::size_t N> class OneBased {
public:
    T& operator[](int i) {
        assert(i >= 1 && static_cast<std::size_t>(i) <= N);
        return werte_[static_cast<std::size_t>(i - 1)];
    }
    const T& operator[](int i) const {
        assert(i >= 1 && static_cast<std::size_t>(i) <= N);
        return werte_[static_cast<std::size_t>(i - 1)];
    }
    static constexpr int size() { return static_cast<int>(N); }

private:
    std::array<T, N> werte_{};
};

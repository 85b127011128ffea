// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>

// How a lower layer makes an object of a higher one that it knows only by an interface:
// each program installs, at start, the factory of the implementation it links; a program
// that links none leaves it empty and create() gives nullptr.
template<typename Product, typename Argument>
class InstalledFactory
{
public:
    using Function = Product *(*)(Argument argument);

    static void install(Function function) { s_function.store(function); }
    static bool installed() { return s_function.load() != nullptr; }
    static Product *create(Argument argument)
    {
        const Function function = s_function.load();
        return function ? function(argument) : nullptr;
    }

private:
    static inline std::atomic<Function> s_function {nullptr};
};

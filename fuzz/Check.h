#pragma once

#include <cstdio>
#include <cstdlib>

// A property of the reader that must hold for every input; a failure is a finding.
#define FUZZ_CHECK(condition)                                                      \
    do {                                                                           \
        if (!(condition)) {                                                        \
            std::fprintf(stderr, "%s:%d: %s does not hold\n", __FILE__, __LINE__, #condition); \
            std::abort();                                                          \
        }                                                                          \
    } while (false)

#pragma once

#include <cstddef>

// The allocation functions of GNU's C library under their other names, by which a program that defines malloc and the
// like itself still reaches them.
extern "C" {
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *block, std::size_t size);
void __libc_free(void *block);
}

/// @file
/// What differs between compilers in each exported header: the mark of what the shared library shows to its
/// hosts (everything else stays hidden), and the check of printf formats.
#pragma once

#if defined(VAPP_STATIC)
#define VAPP_EXPORT
#elif defined(_WIN32) && defined(VAPP_BUILDING)
#define VAPP_EXPORT __declspec(dllexport)
#elif defined(_WIN32)
#define VAPP_EXPORT __declspec(dllimport)
#else
#define VAPP_EXPORT __attribute__((visibility("default")))
#endif

/// Checks the calls of a function like printf: the places of the format and of the first value. Two compilers
/// of one family differ in which printf they mean by that name; ours is the one of the C standard.
#if defined(_WIN32) && defined(__GNUC__) && !defined(__clang__)
#define VAPP_PRINTF_LIKE(format_place, first_place) \
    __attribute__((format(gnu_printf, format_place, first_place)))
#else
#define VAPP_PRINTF_LIKE(format_place, first_place) __attribute__((format(printf, format_place, first_place)))
#endif

/// @file
/// Marks what the shared library shows to its hosts; everything else stays hidden.
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

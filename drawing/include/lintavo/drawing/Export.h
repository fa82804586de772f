// Marks what the drawing library shows to its hosts; everything else stays hidden.
#pragma once

#if defined(LINTAVO_STATIC)
#define LINTAVO_DRAWING_API
#elif defined(_WIN32)
#if defined(LINTAVO_DRAWING_BUILD)
#define LINTAVO_DRAWING_API __declspec(dllexport)
#else
#define LINTAVO_DRAWING_API __declspec(dllimport)
#endif
#else
#define LINTAVO_DRAWING_API __attribute__((visibility("default")))
#endif

#pragma once

/// Marks what the companion library exports.
#if !defined(_WIN32)
#define QLX_API
#elif defined(QLX_BUILD)
#define QLX_API __declspec(dllexport)
#else
#define QLX_API __declspec(dllimport)
#endif

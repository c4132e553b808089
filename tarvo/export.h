#pragma once

/// Marks what TarvoLib.dll exports. Natively the library is linked statically.
#if !defined(_WIN32)
#define TARVO_API
#elif defined(TARVO_BUILD)
#define TARVO_API __declspec(dllexport)
#else
#define TARVO_API __declspec(dllimport)
#endif

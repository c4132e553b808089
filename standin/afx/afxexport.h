#pragma once

/// Marks what the framework's shared library exports. Natively the framework is linked statically.
#if !defined(_WIN32)
#define AFX_API
#elif defined(AFX_BUILD)
#define AFX_API __declspec(dllexport)
#else
#define AFX_API __declspec(dllimport)
#endif

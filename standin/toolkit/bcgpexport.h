#pragma once

/// Marks what the toolkit exports. It is part of the framework's shared library, or one of its own beside a
/// vendor's framework.
#if defined(AFX_BUILD) || defined(BCGP_BUILD)
#define BCGP_API __declspec(dllexport)
#else
#define BCGP_API __declspec(dllimport)
#endif

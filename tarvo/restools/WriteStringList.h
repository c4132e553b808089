#pragma once

#include "tarvo/export.h"
#include "tarvo/restools/Resources.h"

/// Appends the texts of a script to \p strText. For every menu the heading "Menu: " and its name, then one
/// line each with ID, tab and text for its items with a text; for every dialog the heading "Dialog: " and
/// its name, a line of "CAPTION", tab and the caption when it has one, then its controls likewise; then
/// the heading "Strings: " and every string's ID, a tab and its text. Every line ends with "\r\n".
/// \p bClean takes the finished list through CleanStringList.
TARVO_API void WriteStringList(const CResources& resources, CString& strText, bool bClean);

/// Takes out what only a program needs, in this order: every "&" (a doubled one vanishes entirely), then
/// backslash-n, backslash-t and backslash-r become one space each, and backslash-quote a plain quote.
TARVO_API void CleanStringList(CString& strText);

#pragma once

#include "tarvo/export.h"
#include "tarvo/restools/Resources.h"

/// Appends the paired texts of two scripts to \p strText, the translation table: the sections "[DIALOG]",
/// "[DIALOGEX]", "[MENU]" and "[STRINGTABLE]", each with its head even when it is empty, its pairs in the
/// order of file 1. Texts are paired as in a comparison; what has no partner in file 2 is no pair. Pairs of
/// two empty texts, and within a section repeated pairs, are left out. \p bQuoted writes
/// `"text 1"="text 2"`, else ID, tab, text 1, tab, text 2. Every line ends with "\r\n".
TARVO_API void WritePairs(const CResources& resources1, const CResources& resources2, CString& strText,
                          bool bQuoted);

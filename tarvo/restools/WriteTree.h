#pragma once

#include "tarvo/export.h"
#include "tarvo/restools/Resources.h"

/// Appends every resource of a script to \p strText, kind by kind below a heading: two spaces and its name,
/// then each of its items, four spaces and the item's ID. Unless \p bIDsOnly, the items of toolbars are
/// followed by a tab and their keyword, all other items and the strings by a tab and their text. Every
/// line ends with "\r\n".
TARVO_API void WriteTree(const CResources& resources, CString& strText, bool bIDsOnly);

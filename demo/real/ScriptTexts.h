#pragma once
#include <string>
#include <vector>

class CResources;

/// A control that can be told by its number alone, and the text that a script gives it.
struct ScriptControl
{
    std::wstring symbol;
    int id = 0;
    std::wstring text;
};

struct ScriptDialog
{
    std::wstring symbol;
    int id = 0;
    std::wstring caption; ///< empty where the script gives none
    std::vector<ScriptControl> controls;
};

/// The dialogs of \p original with the texts that \p translated gives them, escapes resolved. Of the controls
/// those with a text, alone in their dialog under a symbol whose number no other symbol of \p header (a
/// resource header's text) has.
std::vector<ScriptDialog> dialogs_of(const CResources& original, const CResources& translated,
                                     const std::wstring& header);

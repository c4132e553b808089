#pragma once

#include "tarvo/restools/Resources.h"
#include "tarvo/restools/ScriptKeywords.h"
#include "tarvo/restools/ScriptWords.h"

#include <cstddef>
#include <string_view>

/// Where a control's statement keeps what the model takes. Text, ID and class are counted in words between
/// blanks and commas, the rest in words between commas alone, of which a keyword and the text behind it
/// are one.
struct CControlRule
{
    std::u16string_view keyword;
    bool hasText;
    bool hasClass;     ///< the type is the word behind the ID
    std::size_t style; ///< the extended style follows it directly, except where hasClass
};

inline bool IsControl(ScriptKeyword keyword) { return keyword >= ScriptKeyword::Control; }
/// The rule of a keyword that is a control's.
const CControlRule& ControlRuleOf(ScriptKeyword keyword);

/// Finds the words of a control's statement and puts type, ID and text into \p control. \p words stands
/// behind the keyword. Gives the words between commas from the style on.
CScriptWords FindControlWords(const CControlRule& rule, const CScriptWords& words,
                              CResDialogControl& control);

#pragma once

#include "tarvo/export.h"
#include "tarvo/lang/XIni.h"
#include "tarvo/restools/Resources.h"

/// Puts the texts of a translated script into a language file, so that a host shows them without the script:
/// - "GENERAL": CODEPAGE and PROJECT.
/// - A section for each dialog of \p original, named by its symbol: the texts of its controls by their
///   symbols, and the caption under the dialog's own.
/// - "DIALOG": controls whose symbol stands in several dialogs with the same translation in all of them.
/// - "MENUSTR": menu items by their symbols, popups by their original text without "&" and what follows a
/// tab.
///
/// Only symbols count, and of controls only those that are alone in their dialog: a number, or a symbol that
/// several static texts share, cannot be found again. What \p translated has not, or has without a text, is
/// left out. Escapes of the script become what they stand for, but for \n and \r, which a language file
/// writes the same way.
TARVO_API void ExportIni(const CResources& original, const CResources& translated, const wchar_t* pszProject,
                         int nCodePage, XIni& ini);

/// The code page in which Windows writes the language of a LANGUAGE statement: its word ("LANG_KOREAN") or
/// number in decimal. 1252 for all that the table does not have.
TARVO_API int CodePageOfLanguage(const wchar_t* pszLanguage);

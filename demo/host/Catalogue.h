#pragma once
#include "tarvo/msg/MSGInfoImpl.h"

#include <afxwin.h>

#include <memory>
#include <vector>

/// Hands over which message files the program ships, says how its language files are found, and loads the
/// messages of the stored language. The object is the one that the library asks; keep it as long as the
/// program runs.
std::unique_ptr<CMSGInfoImpl> start_messages();

/// The catalogue's text of a key.
CString catalogue_text(const wchar_t* key);

/// Fills a combo box with the catalogue's texts; what was chosen stays, the first at first.
void fill_from_catalogue(CWnd& window, int combo, const std::vector<const wchar_t*>& keys);
/// The same with texts that are alike in every language.
void fill_with_texts(CWnd& window, int combo, const std::vector<const wchar_t*>& texts);

/// A number that the user has entered, with a point or a comma; 0 when it is none.
double entered_number(const CWnd& window, int edit);
void show_number(CWnd& window, int control, double value, int decimals);

#pragma once

#include "tarvo/msg/MessageStore.h"
#include "tarvo/msg/MessageText.h"

#include <string>

/// What a message file and a font file mean, whichever class gives their lines.
namespace msgtext
{
/// Adds every entry of \p lines whose key is not there yet.
template <class Lines>
void AddEntries(Lines lines, CMessageStore& store)
{
    units::view line, key, value;
    std::u16string changed;
    while (lines.Next(line))
    {
        if (!ParseEntry(line, key, value))
            continue;
        if (HasEscapes(value))
        {
            changed = value;
            changed.resize(Unescape(changed.data(), changed.size()));
            value = changed;
        }
        store.Insert(key, value);
    }
}

template <class Lines>
void ReadFont(Lines lines, CString& fontName, int& fontSize)
{
    units::view line;
    while (lines.Next(line))
        ReadFontLine(line, fontName, fontSize);
}
} // namespace msgtext

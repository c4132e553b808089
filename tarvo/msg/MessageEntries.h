#pragma once

#include "tarvo/msg/MessageStore.h"
#include "tarvo/msg/MessageText.h"

#include <string>

/// What a message file and a font file mean, whichever class gives their lines.
namespace msgtext
{
/// Adds every entry whose key is not there yet and gives how many entries there are. \p next(line, marks)
/// gives the lines of the file until it is false; a line has to be valid until the one after the next is
/// asked for.
template <class Next>
std::size_t AddEntries(Next next, CMessageStore& store)
{
    units::view line, key, value;
    textline::LineMarks marks;
    std::u16string changed;
    std::uint32_t hash = 0;
    std::size_t count = 0;
    // An entry is added when the next line has been read: its place is fetched from memory meanwhile.
    bool waiting = false;
    while (next(line, marks))
    {
        if (waiting)
            store.Insert(key, value, hash);
        waiting = ParseEntry(line, marks, key, value);
        if (!waiting)
            continue;
        ++count;
        hash = store.Announce(key);
        if (HasEscapes(value))
        {
            changed = value;
            changed.resize(Unescape(changed.data(), changed.size()));
            value = changed;
        }
    }
    if (waiting)
        store.Insert(key, value, hash);
    return count;
}

template <class Next>
void ReadFont(Next next, CString& fontName, int& fontSize)
{
    units::view line;
    textline::LineMarks marks;
    while (next(line, marks))
        ReadFontLine(line, fontName, fontSize);
}
} // namespace msgtext

#pragma once

#include "tarvo/text/Units.h"

#include <afxstr.h>

#include <climits>
#include <cstddef>
#include <new>

/// Appends to \p strText what \p write puts into the object that it is called with, text by text: first to
/// count the units, then to place them, so that memory is taken once and nothing is copied twice. Throws
/// std::bad_alloc when there is no memory, or more units than a CString can hold.
template <class Write>
void AppendText(CString& strText, Write write)
{
    struct Counter
    {
        void Put(units::view text) { count += text.size(); }
        std::size_t count;
    };
    struct Writer
    {
        void Put(units::view text)
        {
            units::widen(text.data(), text.size(), at);
            at += text.size();
        }
        wchar_t* at;
    };
    const int before = strText.GetLength();
    Counter counter{static_cast<std::size_t>(before)};
    write(counter);
    if (counter.count > INT_MAX)
        throw std::bad_alloc();
    Writer writer{strText.GetBufferSetLength(static_cast<int>(counter.count)) + before};
    write(writer);
}

#pragma once

#include "cli/command.h"
#include "tarvo/lang/XIni.h"

#include <afxstr.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

/// What the ini commands share: a document as they print and compare it, and its way in and out.
namespace cli
{
struct Section
{
    CString name;
    std::vector<std::pair<CString, CString>> entries; ///< key and value, in the library's order
};

struct Document
{
    std::vector<Section> sections; ///< in the library's order
    std::optional<CString> default_section;
};

Document contents(XIni& ini);

/// Opens the first operand into \p ini as a host would, standard input included, and notes what a
/// translator should know about its bytes. Throws Failure when it cannot be read.
void open(XIni& ini, const Call& call);

/// Says what \p again, read from the bytes of \p ini, has lost or holds otherwise; one note for each kind.
void note_losses(XIni& ini, XIni& again, const Call& call);

/// The section operand as the library's look-ups take it: "@default" is the null name.
class SectionName
{
public:
    explicit SectionName(const std::string& operand);
    const wchar_t* get() const { return m_default ? nullptr : m_name.c_str(); }

private:
    bool m_default;
    std::wstring m_name;
};
} // namespace cli

#pragma once
#include "tarvo/intl/InternationalPropertySheet.h"

#include <utility>
#include <vector>

/// What a page's controls show when it comes up first, and what its combo boxes list.
struct PageData
{
    struct Combo
    {
        int id;
        bool inCatalogue; ///< the entries are keys; else texts that are alike in every language
        std::vector<const wchar_t*> entries;
    };
    UINT page;
    std::vector<std::pair<int, const wchar_t*>> edits;
    std::vector<int> checked;
    std::vector<Combo> combos;
};

/// A page of entries of the analysis control or the wizard. Entries stay when the language changes.
class CDataPage : public CInternationalPropertyPage
{
public:
    explicit CDataPage(const PageData& data) : CInternationalPropertyPage(data.page), m_data(data) {}
    void SetText() override;

protected:
    BOOL OnInitDialog() override;

private:
    PageData m_data;
};

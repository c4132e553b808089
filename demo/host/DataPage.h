#pragma once
#include "tarvo/intl/InternationalPropertySheet.h"

#include <functional>
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
        int chosen = 0;
    };
    UINT page;
    std::vector<std::pair<int, CString>> edits;
    std::vector<int> checked;
    std::vector<Combo> combos;
};

/// A page of entries of the analysis control or the wizard. Entries stay when the language changes.
class CDataPage : public CInternationalPropertyPage
{
public:
    explicit CDataPage(const PageData& data) : CInternationalPropertyPage(data.page), m_data(data) {}
    void SetText() override;
    /// What takes the entries over, with OK and Apply.
    void SetApply(std::function<void(CDataPage&)> apply) { m_apply = std::move(apply); }

protected:
    BOOL OnInitDialog() override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    BOOL OnApply() override;

private:
    PageData m_data;
    std::function<void(CDataPage&)> m_apply;
    bool m_bFilled = false; ///< by the program; what changes from now on is the user's
};

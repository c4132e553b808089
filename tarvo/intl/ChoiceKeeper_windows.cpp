#include "tarvo/intl/ChoiceKeeper_windows.h"

#include <utility>

namespace
{
template <class Use>
void ForEachChild(HWND window, const wchar_t* className, Use use)
{
    for (HWND child = nullptr; (child = ::FindWindowExW(window, child, className, nullptr)) != nullptr;)
        use(child);
}

LRESULT Ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
{
    return ::SendMessageW(window, message, wParam, lParam);
}

int CountOf(HWND list) { return static_cast<int>(Ask(list, LVM_GETITEMCOUNT)); }

int NextOf(HWND list, int from, UINT which)
{
    return static_cast<int>(
        Ask(list, LVM_GETNEXTITEM, static_cast<WPARAM>(from), static_cast<LPARAM>(which)));
}

UINT StateOf(HWND list, int line, UINT mask)
{
    return static_cast<UINT>(Ask(list, LVM_GETITEMSTATE, static_cast<WPARAM>(line), mask));
}

void SetState(HWND list, int line, UINT state, UINT mask)
{
    LVITEMW item = {};
    item.state = state;
    item.stateMask = mask;
    Ask(list, LVM_SETITEMSTATE, static_cast<WPARAM>(line), reinterpret_cast<LPARAM>(&item));
}

HTREEITEM Next(HWND tree, UINT which, HTREEITEM from)
{
    return reinterpret_cast<HTREEITEM>(Ask(tree, TVM_GETNEXTITEM, which, reinterpret_cast<LPARAM>(from)));
}

UINT StateOf(HWND tree, HTREEITEM node)
{
    return static_cast<UINT>(
        Ask(tree, TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(node), TVIS_EXPANDED | TVIS_STATEIMAGEMASK));
}

LPARAM DataOf(HWND tree, HTREEITEM node)
{
    TVITEMW item = {};
    item.mask = TVIF_PARAM | TVIF_HANDLE;
    item.hItem = node;
    Ask(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    return item.lParam;
}

HTREEITEM FirstBelow(HWND tree, HTREEITEM parent)
{
    return parent ? Next(tree, TVGN_CHILD, parent) : Next(tree, TVGN_ROOT, nullptr);
}
} // namespace

CChoiceKeeper::CChoiceKeeper(HWND window)
{
    ForEachChild(window, WC_LISTVIEWW, [this](HWND list) { m_lists.push_back(TakeList(list)); });
    ForEachChild(window, WC_TREEVIEWW, [this](HWND tree) { m_trees.push_back(TakeTree(tree)); });
}

CChoiceKeeper::~CChoiceKeeper()
{
    for (const List& list : m_lists)
        if (::IsWindow(list.window) && !(TakeList(list.window) == list))
            PutBack(list);
    for (const Tree& tree : m_trees)
    {
        if (!::IsWindow(tree.window) || TakeTree(tree.window) == tree)
            continue;
        HTREEITEM selected = nullptr;
        PutBack(tree.window, nullptr, tree.roots, selected);
        if (selected)
            Ask(tree.window, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(selected));
    }
}

// Lines.

CChoiceKeeper::Now CChoiceKeeper::ByData(const std::vector<Line>& lines)
{
    Now now;
    for (const Line& line : lines)
        if (line.data)
            now.emplace(line.data, line.number);
    return now;
}

/// The number that a line has among others now; -1 when it is gone.
int CChoiceKeeper::Find(const std::vector<Line>& lines, const Now& now, const Line& wanted)
{
    const bool there = wanted.number >= 0 && wanted.number < static_cast<int>(lines.size());
    if (there && lines[static_cast<std::size_t>(wanted.number)] == wanted)
        return wanted.number;
    const auto found = wanted.data ? now.find(wanted.data) : now.end();
    return found != now.end() ? found->second : there ? wanted.number : -1;
}

// Lists.

CChoiceKeeper::Line CChoiceKeeper::LineAt(HWND list, int number)
{
    LVITEMW item = {};
    item.mask = LVIF_PARAM;
    item.iItem = number;
    const bool own = (::GetWindowLongPtrW(list, GWL_STYLE) & LVS_OWNERDATA) != 0; // the program's alone
    if (number < 0 || own || !Ask(list, LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item)))
        return {number, 0};
    return {number, item.lParam};
}

CChoiceKeeper::List CChoiceKeeper::TakeList(HWND window)
{
    List list;
    list.window = window;
    for (int i = -1; (i = NextOf(window, i, LVNI_SELECTED)) >= 0;)
        list.selected.push_back(LineAt(window, i));
    list.focused = LineAt(window, NextOf(window, -1, LVNI_FOCUSED));
    if (Ask(window, LVM_GETEXTENDEDLISTVIEWSTYLE) & LVS_EX_CHECKBOXES)
        for (int i = 0; i < CountOf(window); ++i)
            list.checks.emplace_back(LineAt(window, i), StateOf(window, i, LVIS_STATEIMAGEMASK));
    return list;
}

void CChoiceKeeper::PutBack(const List& list)
{
    const int count = CountOf(list.window);
    std::vector<Line> lines;
    lines.reserve(static_cast<std::size_t>(count > 0 ? count : 0));
    for (int i = 0; i < count; ++i)
        lines.push_back(LineAt(list.window, i));
    const Now now = ByData(lines);
    for (const auto& [line, check] : list.checks)
        if (const int number = Find(lines, now, line); number >= 0)
            SetState(list.window, number, check, LVIS_STATEIMAGEMASK);
    SetState(list.window, -1, 0, LVIS_SELECTED);
    for (const Line& line : list.selected)
        if (const int number = Find(lines, now, line); number >= 0)
            SetState(list.window, number, LVIS_SELECTED, LVIS_SELECTED);
    const int focused = Find(lines, now, list.focused);
    if (focused < 0)
        return;
    SetState(list.window, focused, LVIS_FOCUSED, LVIS_FOCUSED);
    Ask(list.window, LVM_ENSUREVISIBLE, static_cast<WPARAM>(focused), FALSE);
}

// Trees.

std::vector<CChoiceKeeper::Node> CChoiceKeeper::TakeNodes(HWND tree, HTREEITEM parent, HTREEITEM selected)
{
    std::vector<Node> nodes;
    for (HTREEITEM item = FirstBelow(tree, parent); item; item = Next(tree, TVGN_NEXT, item))
    {
        const UINT state = StateOf(tree, item);
        Node node;
        node.line = {static_cast<int>(nodes.size()), DataOf(tree, item)};
        node.open = (state & TVIS_EXPANDED) != 0;
        node.selected = item == selected;
        node.check = state & TVIS_STATEIMAGEMASK;
        if (node.open)
            node.below = TakeNodes(tree, item, selected);
        nodes.push_back(std::move(node));
    }
    return nodes;
}

CChoiceKeeper::Tree CChoiceKeeper::TakeTree(HWND window)
{
    return {window, TakeNodes(window, nullptr, Next(window, TVGN_CARET, nullptr))};
}

void CChoiceKeeper::PutBack(HWND tree, HTREEITEM item, const Node& node)
{
    const UINT state = StateOf(tree, item);
    if (node.open != ((state & TVIS_EXPANDED) != 0))
        Ask(tree, TVM_EXPAND, node.open ? TVE_EXPAND : TVE_COLLAPSE, reinterpret_cast<LPARAM>(item));
    if ((state & TVIS_STATEIMAGEMASK) == node.check)
        return;
    TVITEMW change = {};
    change.mask = TVIF_STATE | TVIF_HANDLE;
    change.hItem = item;
    change.state = node.check;
    change.stateMask = TVIS_STATEIMAGEMASK;
    Ask(tree, TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&change));
}

/// Finds the node that was selected, too.
void CChoiceKeeper::PutBack(HWND tree, HTREEITEM parent, const std::vector<Node>& nodes, HTREEITEM& selected)
{
    std::vector<HTREEITEM> items;
    std::vector<Line> lines;
    for (HTREEITEM item = FirstBelow(tree, parent); item; item = Next(tree, TVGN_NEXT, item))
    {
        lines.push_back({static_cast<int>(items.size()), DataOf(tree, item)});
        items.push_back(item);
    }
    const Now now = ByData(lines);
    for (const Node& node : nodes)
    {
        const int number = Find(lines, now, node.line);
        if (number < 0)
            continue;
        const HTREEITEM item = items[static_cast<std::size_t>(number)];
        PutBack(tree, item, node);
        selected = node.selected ? item : selected;
        if (!node.below.empty())
            PutBack(tree, item, node.below, selected);
    }
}

#pragma once

#include <afxcmn.h>

#include <unordered_map>
#include <utility>
#include <vector>

/// What the user has chosen in the list views and trees among a window's children: the selected lines and the
/// focused one, the lines that are checked, the nodes that are open. The destructor chooses it again where it
/// has changed since: a program that lists texts of the language lists them anew when that changes.
///
/// A line is known again by its data (LVITEM::lParam, TVITEM::lParam) when that is not 0 and still there,
/// since translated lines may stand in another order; else by its number. The program is told of it as of the
/// user's choice: when it emptied the list, it was told that nothing is chosen any more.
class CChoiceKeeper
{
public:
    explicit CChoiceKeeper(HWND window);
    ~CChoiceKeeper();
    CChoiceKeeper(const CChoiceKeeper&) = delete;
    CChoiceKeeper& operator=(const CChoiceKeeper&) = delete;

private:
    struct Line
    {
        int number = -1;
        LPARAM data = 0;
        friend bool operator==(const Line&, const Line&) = default;
    };
    struct List
    {
        HWND window = nullptr;
        std::vector<Line> selected;
        Line focused;
        std::vector<std::pair<Line, UINT>> checks; ///< state images; empty without check boxes
        friend bool operator==(const List&, const List&) = default;
    };
    struct Node
    {
        Line line; ///< its number is that among its parent's
        bool open = false;
        bool selected = false;
        UINT check = 0;          ///< state image
        std::vector<Node> below; ///< when it is open
        friend bool operator==(const Node&, const Node&) = default;
    };
    struct Tree
    {
        HWND window = nullptr;
        std::vector<Node> roots;
        friend bool operator==(const Tree&, const Tree&) = default;
    };
    /// The lines that are there now, by their data.
    using Now = std::unordered_map<LPARAM, int>;

    static List TakeList(HWND window);
    static std::vector<Node> TakeNodes(HWND tree, HTREEITEM parent, HTREEITEM selected);
    static Tree TakeTree(HWND window);
    static Line LineAt(HWND list, int number);
    static int Find(const std::vector<Line>& lines, const Now& now, const Line& wanted);
    static Now ByData(const std::vector<Line>& lines);
    static void PutBack(const List& list);
    static void PutBack(HWND tree, HTREEITEM parent, const std::vector<Node>& nodes, HTREEITEM& selected);
    static void PutBack(HWND tree, HTREEITEM item, const Node& node);

    std::vector<List> m_lists;
    std::vector<Tree> m_trees;
};

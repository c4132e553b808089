#pragma once
#include <afxwin.h>

/// What the main window shows: an elevation of a frame with its supports and loads.
struct FrameView
{
    bool grid;
    bool nodeNumbers;
};

/// The model's size, for the status line.
inline constexpr int kNodeCount = 12;
inline constexpr int kMemberCount = 15;
inline constexpr int kLoadCaseCount = 7;

void paint_frame(CDC& dc, const CRect& area, const FrameView& view);

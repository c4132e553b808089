#pragma once
#include <afxwin.h>

/// What the main window shows: an elevation of a frame with its supports and loads.
struct FrameView
{
    bool grid;
    bool nodeNumbers;
    int bays;
    int storeys;
};

void paint_frame(CDC& dc, const CRect& area, const FrameView& view);

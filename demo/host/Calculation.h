#pragma once
#include "demo/host/AnalysisSettings.h"
#include "demo/host/FrameModel.h"

// What the program does with its model. All results go to the message pane, through the library's free
// functions and in the catalogue's words.

/// Writes to the history page. False when there are errors.
bool check_model(const FrameModel& model);
/// Writes to the analysis page, which it empties first. Checks the model before.
void run_analysis(const FrameModel& model, FrameAnalysis analysis, const AnalysisSettings& settings);

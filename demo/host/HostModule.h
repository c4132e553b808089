#pragma once
#include "demo/common/DemoModule.h"

/// The program itself as a module: its own dialogs.
DemoModule HostModule();

std::unique_ptr<CTranslatedDialog> make_project_settings(CWnd* parent);
std::unique_ptr<CTranslatedDialog> make_load_cases(CWnd* parent);
std::unique_ptr<CTranslatedDialog> make_units(CWnd* parent);
std::unique_ptr<CTranslatedDialog> make_about(CWnd* parent);

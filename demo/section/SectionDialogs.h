#pragma once
#include "demo/common/TranslatedDialog.h"

#include <memory>

std::unique_ptr<CTranslatedDialog> make_section_library(CWnd* parent);
std::unique_ptr<CTranslatedDialog> make_member_properties(CWnd* parent);

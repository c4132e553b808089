#pragma once

#include "tests/platform/codepage_report.h"

namespace codepage_report
{
/// MultiByteToWideChar and WideCharToMultiByte themselves, flags 0.
Converter system();
} // namespace codepage_report

#pragma once

#include "tarvo/export.h"
#include "tarvo/restools/CheckString.h"
#include "tarvo/restools/ResourceReport.h"
#include "tarvo/restools/Resources.h"

#include <vector>

/// Holds \p resources2, usually a translation, against \p resources1 and appends a report of everything
/// that a translator could have broken to \p strReport; every line ends with "\r\n". What only
/// \p resources2 has is no difference but where items are counted and their order is compared. Resources
/// are paired by name and strings by ID, of which the first counts; items with the same ID pair in their
/// order. A resource whose name is repeated is compared with the first of that name each time; when the
/// report becomes larger than CResReport::MaxSize by this, std::bad_alloc is thrown. With \p pFindings the
/// differences are listed there as well, in the order of the report.
TARVO_API void CompareResources(const CResources& resources1, const CResources& resources2,
                                CString& strReport, StringCheck mode,
                                std::vector<CResFinding>* pFindings = nullptr);

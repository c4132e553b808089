#pragma once

/// The extension toolkit: its dialogs, form views, property pages and sheets, and the visual manager that
/// colours them.

#include "bcgpdialog.h"
#include "bcgpformview.h"
#include "bcgppropertypage.h"
#include "bcgppropertysheet.h"
#include "bcgpvisualmanager.h"

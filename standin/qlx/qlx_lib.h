#pragma once

/// The companion library: the host's registry key, its message texts and its projects. All of it is
/// used on one thread; nothing throws.
#include "qlx/MMSGFunction.h"
#include "qlx/MRegistry.h"
#include "qlx/TranslateUtil.h"

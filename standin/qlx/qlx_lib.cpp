#include "qlx/qlx_lib.h"

#include "platform/locale.h"

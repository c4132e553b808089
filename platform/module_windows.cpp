#include "platform/module.h"

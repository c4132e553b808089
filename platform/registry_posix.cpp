#include "platform/registry.h"

#include "platform/codepage.h"

#include "tarvo/export.h"

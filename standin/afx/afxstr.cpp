#include "afxstr.h"

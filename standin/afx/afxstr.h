#pragma once

#include "afxexport.h"

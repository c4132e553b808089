#pragma once
#include "demo/common/DemoModule.h"

#ifdef SECTION_BUILD
#define SECTION_API __declspec(dllexport)
#else
#define SECTION_API __declspec(dllimport)
#endif

/// The module of cross-sections and members, with resources, project name and language files of its own.
SECTION_API DemoModule SectionModule();

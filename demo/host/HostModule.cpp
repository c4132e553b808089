#include "demo/host/HostModule.h"

#include "demo/host/resource.h"

DemoModule HostModule()
{
    return {AfxGetInstanceHandle(),
            IDR_RESOURCE_HEADER,
            {{L"IDD_PROJECT_SETTINGS", IDD_PROJECT_SETTINGS, make_project_settings},
             {L"IDD_LOAD_CASES", IDD_LOAD_CASES, make_load_cases},
             {L"IDD_UNITS", IDD_UNITS, make_units},
             {L"IDD_ABOUT", IDD_ABOUT, make_about}}};
}

#pragma once

#include "tarvo/settings/HostApp.h"

/// A host program of the given names for the life of the object.
class TestHost
{
public:
    TestHost(const wchar_t* company, const wchar_t* profileName) { CHostApp::Register(company, profileName); }
    ~TestHost() { CHostApp::Register(nullptr, nullptr); }
    TestHost(const TestHost&) = delete;
    TestHost& operator=(const TestHost&) = delete;
};

#pragma once

/// Whose message files the host ships, by the task of each module. Where two files have one key, the text of
/// the earlier module counts.
inline constexpr const wchar_t* kMessageModules[] = {
    L"Model",    L"Mesh",       L"Material", L"Section",  L"Loading",  L"Combination",
    L"Analysis", L"Dynamics",   L"Buckling", L"Seismic",  L"Concrete", L"Steel",
    L"Timber",   L"Foundation", L"Drawing",  L"Exchange", L"Report"};

/// Reinforcement was a module of its own once; its texts are Concrete's.
inline constexpr const wchar_t* kAliasModule = L"Rebar";
inline constexpr const wchar_t* kAliasStandsFor = L"Concrete";

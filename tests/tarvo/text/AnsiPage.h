#pragma once

#include "tarvo/text/AnsiPage.h"

#include <gtest/gtest.h>

/// The ANSI page of the process while a test lasts.
struct AnsiPage
{
    explicit AnsiPage(int page) { EXPECT_EQ(SetAnsiCodePage(page), 1); }
    ~AnsiPage() { SetAnsiCodePage(0); }
    AnsiPage(const AnsiPage&) = delete;
    AnsiPage& operator=(const AnsiPage&) = delete;
};

#include "tarvo/text/AnsiPage.h"

#include "platform/codepage.h"

int SetAnsiCodePage(int page) { return platform::codepage::set_ansi_page(page) ? 1 : 0; }

#pragma once

// Identifiers of the test program's own resources. The header that it holds as a resource names them.
#define TEXT_HEADER 200
#define TEXT_PROJECT 201
#define TEXT_ODD 202
#define DIALOG_SETUP 120
#define DIALOG_UNNAMED 121
#define MENU_MAIN 130
#define CONTROL_NAME 1001
#define CONTROL_SIZE 1002
#define CONTROL_EMPTY 1003
#define CONTROL_NO_NAME 1099
#define COMMAND_OPEN 32771
#define COMMAND_EXIT 32772
#define COMMAND_DEEP 32773

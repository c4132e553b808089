#pragma once

// Identifiers of the test program's own resources. They are numbers that the framework's tests do not use.
#define IDD_SETUP 350
#define IDD_OLD_FORM 351
#define IDD_VIEW_FORM 352
#define IDD_PAGE_ONE 353
#define IDD_PAGE_TWO 354
#define IDD_PAGE_WIDE 355
#define IDR_INTL_MENU 360
#define IDS_SHEET_CAPTION 370
#define IDC_LABEL 3001
#define IDC_NOTE 3002
#define IDC_NAME_EDIT 3003
#define IDC_RESULT 3004
#define IDC_UNIT 3005
#define IDC_TYPED 3006
#define IDC_KIND 3007
#define IDC_BROWSE 3008
#define IDC_SEARCH 3009
#define IDC_FRAME 3010
#define IDC_USE 3011
#define IDC_PICTURE 3012
#define IDC_UNNAMED 3099
#define ID_INTL_OPEN 33001
#define ID_INTL_EXIT 33002

//{{NO_DEPENDENCIES}}
#define IDD_SETUP 120
#define IDC_NAME 1001
#define IDM_EXIT 300
#define _APS_NEXT 1
#ifdef X
#define ID_OPEN 0x3E9 // open
#endif

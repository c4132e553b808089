// Symbols of SectionModule.dll. The text of this file is embedded as a resource: the language table
// reads the names from it, so every text that is to be translated needs a symbol with its own number.
// Dialogs have numbers that the host does not use: a template not found here is looked for there.
#define IDR_RESOURCE_HEADER 60
#define IDD_SECTION_LIBRARY 210
#define IDD_MEMBER_PROPERTIES 211

#define IDC_APPLY 1000
#define IDC_OPEN_HELP 1001

#define IDC_SL_FILTER 1100
#define IDC_SL_STANDARD_LABEL 1101
#define IDC_SL_STANDARD 1102
#define IDC_SL_I_SHAPE 1103
#define IDC_SL_CHANNEL 1104
#define IDC_SL_ANGLE 1105
#define IDC_SL_BOX 1106
#define IDC_SL_PIPE 1107
#define IDC_SL_LIST_LABEL 1108
#define IDC_SL_LIST 1109
#define IDC_SL_VALUES 1110
#define IDC_SL_AREA_LABEL 1111
#define IDC_SL_AREA 1112
#define IDC_SL_IY_LABEL 1113
#define IDC_SL_IY 1114
#define IDC_SL_IZ_LABEL 1115
#define IDC_SL_IZ 1116
#define IDC_SL_WY_LABEL 1117
#define IDC_SL_WY 1118
#define IDC_SL_MASS_LABEL 1119
#define IDC_SL_MASS 1120
#define IDC_SL_ONLY_USED 1121
#define IDC_SL_IMPORT 1122
#define IDC_SL_NEW 1123
#define IDC_SL_ASSIGN 1124

#define IDC_MP_IDENTITY 1200
#define IDC_MP_NUMBER_LABEL 1201
#define IDC_MP_NUMBER 1202
#define IDC_MP_SECTION_LABEL 1203
#define IDC_MP_SECTION 1204
#define IDC_MP_SECTION_PICK 1205
#define IDC_MP_MATERIAL_LABEL 1206
#define IDC_MP_MATERIAL 1207
#define IDC_MP_ROTATION_LABEL 1208
#define IDC_MP_ROTATION 1209
#define IDC_MP_TYPE 1210
#define IDC_MP_BEAM 1211
#define IDC_MP_COLUMN 1212
#define IDC_MP_BRACE 1213
#define IDC_MP_TENSION 1214
#define IDC_MP_RELEASES 1215
#define IDC_MP_START_MY 1216
#define IDC_MP_START_MZ 1217
#define IDC_MP_END_MY 1218
#define IDC_MP_END_MZ 1219
#define IDC_MP_BUCKLING 1220
#define IDC_MP_LENGTH_Y_LABEL 1221
#define IDC_MP_LENGTH_Y 1222
#define IDC_MP_LENGTH_Z_LABEL 1223
#define IDC_MP_LENGTH_Z 1224
#define IDC_MP_SWAY 1225
#define IDC_MP_NOTE 1226
#define IDC_MP_ALL_SELECTED 1227

#define IDS_COUNTS 3002
#define IDS_SL_NAME 3003
#define IDS_SL_DEPTH 3004
#define IDS_SL_WIDTH 3005
#define IDS_SL_WEB 3006
#define IDS_SL_FLANGE 3007
#define IDS_MATERIAL_STEEL 3010
#define IDS_MATERIAL_STAINLESS 3011
#define IDS_MATERIAL_CONCRETE 3012
#define IDS_MATERIAL_TIMBER 3013
#define IDS_MATERIAL_ALUMINIUM 3014

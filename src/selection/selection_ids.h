#pragma once

// The selection window.
#define IDD_FORM1 110

#define IDC_FORM1_LABEL3 1101
#define IDC_FORM1_FRAME8 1102
#define IDC_FORM1_TYPEF 1103
#define IDC_FORM1_FRAME6 1104
#define IDC_FORM1_UNITE 1105
#define IDC_FORM1_SOUSREP 1106
#define IDC_FORM1_FRAME5 1107
#define IDC_FORM1_REPERT 1108
#define IDC_FORM1_FRAME7 1109
#define IDC_FORM1_LIST1 1110
#define IDC_FORM1_NBFICH 1111
#define IDC_FORM1_LABEL1 1112
#define IDC_FORM1_CPTFICHIER 1113
#define IDC_FORM1_LABEL4 1114
#define IDC_FORM1_CMDMOINS 1115
#define IDC_FORM1_NNIVEAU 1116
#define IDC_FORM1_CMDPLUS 1117
#define IDC_FORM1_FRAME10 1118
#define IDC_FORM1_CMD_AJO 1119
#define IDC_FORM1_N_FILTRE 1120
#define IDC_FORM1_CMD_ENL 1121
#define IDC_FORM1_CMDCOCHE 1122
#define IDC_FORM1_CMD_INV 1123
#define IDC_FORM1_CMDREPDEF 1124
#define IDC_FORM1_CMD_ANNULER 1125
#define IDC_FORM1_CMD_SORTIE 1126
#define IDC_FORM1_CMD_TRACER 1127
#define IDC_FORM1_CMDAP 1128

// Hidden: the enumerators of the search, and a developer's test button with its two fields.
#define IDC_FORM1_FILE1 1140
#define IDC_FORM1_REP 1141
#define IDC_FORM1_CDMTEST 1142
#define IDC_FORM1_S 1143
#define IDC_FORM1_T 1144

// The items of the system menu. Windows keeps the four lowest bits of such an id for itself.
#define IDM_FORM1_IMPORTER 1152
#define IDM_FORM1_ORDRE 1168

#pragma once

// The prompt about an existing list file.
#define IDD_FORM2 120

#define IDC_FORM2_LABEL1 1201
#define IDC_FORM2_LABEL2 1202
#define IDC_FORM2_LABEL3 1203
#define IDC_FORM2_CMDOK 1204
#define IDC_FORM2_CMDANNULE 1205
#define IDC_FORM2_CMDEFFACER 1206

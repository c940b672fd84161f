#pragma once

// The window of the contract checks: a control of each kind.
#define IDD_CONTRACT 900

#define IDC_CONTRACT_LABEL 9001
#define IDC_CONTRACT_FIELD 9002
#define IDC_CONTRACT_BUTTON 9003
#define IDC_CONTRACT_CHECK 9004
#define IDC_CONTRACT_SEVERAL 9005
#define IDC_CONTRACT_ONE 9006
#define IDC_CONTRACT_TYPED 9007
#define IDC_CONTRACT_CHOSEN 9008
#define IDC_CONTRACT_TABS 9009
#define IDC_CONTRACT_PROGRESS 9010

// Items of its system menu.
#define IDM_CONTRACT_ONE 1344
#define IDM_CONTRACT_TWO 1360

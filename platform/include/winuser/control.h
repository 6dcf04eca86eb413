// The controls of the system and message boxes, as winuser.h has them.
#pragma once

#include "../windef.h"

// What controls ask of the window above them, and what they share.
#define WM_CTLCOLOREDIT 0x0133
#define WM_CTLCOLORLISTBOX 0x0134
#define WM_CTLCOLORBTN 0x0135
#define WM_CTLCOLORSTATIC 0x0138

// Button. https://learn.microsoft.com/windows/win32/controls/button-styles
#define BS_PUSHBUTTON 0x0000
#define BS_3STATE 0x0005
#define BS_TYPEMASK 0x000F
#define BS_LEFTTEXT 0x0020
#define BS_LEFT 0x0100
#define BS_RIGHT 0x0200
#define BS_CENTER 0x0300
#define BS_PUSHLIKE 0x1000
#define BS_MULTILINE 0x2000
#define BS_NOTIFY 0x4000
#define BN_CLICKED 0
#define BN_DBLCLK 5
#define BN_SETFOCUS 6
#define BN_KILLFOCUS 7
#define BM_GETCHECK 0x00F0
#define BM_SETCHECK 0x00F1
#define BM_GETSTATE 0x00F2
#define BST_UNCHECKED 0x0000
#define BST_CHECKED 0x0001
#define BST_INDETERMINATE 0x0002
#define BST_PUSHED 0x0004
#define BST_FOCUS 0x0008

// Edit. https://learn.microsoft.com/windows/win32/controls/edit-control-styles
#define DLGC_WANTARROWS 0x0001
#define DLGC_WANTALLKEYS 0x0004
#define DLGC_HASSETSEL 0x0008
#define DLGC_WANTCHARS 0x0080

#define ES_CENTER 0x0001
#define ES_RIGHT 0x0002
#define ES_MULTILINE 0x0004
#define ES_UPPERCASE 0x0008
#define ES_LOWERCASE 0x0010
#define ES_PASSWORD 0x0020
#define ES_AUTOVSCROLL 0x0040
#define ES_AUTOHSCROLL 0x0080
#define ES_NOHIDESEL 0x0100
#define ES_READONLY 0x0800
#define ES_NUMBER 0x2000
#define EN_SETFOCUS 0x0100
#define EN_KILLFOCUS 0x0200
#define EN_CHANGE 0x0300
#define EN_UPDATE 0x0400
#define EN_MAXTEXT 0x0501
#define EN_HSCROLL 0x0601
#define EN_VSCROLL 0x0602
#define EM_GETSEL 0x00B0
#define EM_SETSEL 0x00B1
#define EM_SCROLLCARET 0x00B7
#define EM_GETMODIFY 0x00B8
#define EM_SETMODIFY 0x00B9
#define EM_GETLINECOUNT 0x00BA
#define EM_LINEINDEX 0x00BB
#define EM_LINELENGTH 0x00C1
#define EM_REPLACESEL 0x00C2
#define EM_GETLINE 0x00C4
#define EM_LIMITTEXT 0x00C5
#define EM_CANUNDO 0x00C6
#define EM_UNDO 0x00C7
#define EM_LINEFROMCHAR 0x00C9
#define EM_SETPASSWORDCHAR 0x00CC
#define EM_EMPTYUNDOBUFFER 0x00CD
#define EM_GETFIRSTVISIBLELINE 0x00CE
#define EM_SETREADONLY 0x00CF
#define EM_GETPASSWORDCHAR 0x00D2
#define EM_GETLIMITTEXT 0x00D5
#define EM_CHARFROMPOS 0x00D7
#define EM_SETLIMITTEXT EM_LIMITTEXT

// ComboBox. https://learn.microsoft.com/windows/win32/controls/combo-box-styles
#define CBS_DROPDOWNLIST 0x0003
#define CBS_SORT 0x0100
#define CBS_HASSTRINGS 0x0200
#define CB_ERR (-1)
#define CBN_SELCHANGE 1
#define CBN_SETFOCUS 3
#define CBN_KILLFOCUS 4
#define CBN_DROPDOWN 7
#define CBN_CLOSEUP 8
#define CBN_SELENDOK 9
#define CBN_SELENDCANCEL 10
#define CB_ADDSTRING 0x0143
#define CB_GETCOUNT 0x0146
#define CB_GETCURSEL 0x0147
#define CB_SETCURSEL 0x014E
#define CB_SHOWDROPDOWN 0x014F
#define CB_GETDROPPEDSTATE 0x0157

// Static. https://learn.microsoft.com/windows/win32/controls/static-control-styles
#define SS_LEFT 0x0000
#define SS_EDITCONTROL 0x2000

// Message boxes. https://learn.microsoft.com/windows/win32/api/winuser/nf-winuser-messageboxindirectw
#define MB_OK 0x00000000
#define MB_OKCANCEL 0x00000001
#define MB_YESNO 0x00000004
#define MB_ICONHAND 0x00000010
#define MB_ICONEXCLAMATION 0x00000030
#define MB_USERICON 0x00000080
#define MB_ICONMASK 0x000000F0
#define IDOK 1
#define IDYES 6

struct HELPINFO {
    UINT cbSize;
    int iContextType;
    int iCtrlId;
    HANDLE hItemHandle;
    DWORD_PTR dwContextId;
    POINT MousePos;
};
using LPHELPINFO = HELPINFO*;
using MSGBOXCALLBACK = void(CALLBACK*)(LPHELPINFO help);

struct MSGBOXPARAMSW {
    UINT cbSize;
    HWND hwndOwner;
    HINSTANCE hInstance;
    LPCWSTR lpszText;
    LPCWSTR lpszCaption;
    DWORD dwStyle;
    LPCWSTR lpszIcon;
    DWORD_PTR dwContextHelpId;
    MSGBOXCALLBACK lpfnMsgBoxCallback;
    DWORD dwLanguageId;
};
using LPMSGBOXPARAMSW = MSGBOXPARAMSW*;

int WINAPI MessageBoxIndirectW(const MSGBOXPARAMSW* parameters);

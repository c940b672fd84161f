; The per-user installer. It needs no administrator: the program writes its files beside itself, so it lives where its
; user may write. Called with -DVERSION, -DFILES (the directory of what is installed), -DICON and -DOUTPUT.
Unicode true
Target amd64-unicode
!include LogicLib.nsh
!include MUI2.nsh
!include WinCore.nsh
!include WinVer.nsh

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Tarnwick"
; Windows 10, version 1903: since then a program's manifest may choose UTF-8.
!define WINDOWS_BUILD 18362
; The class that the trial session registers when no other has SolidWorks' name.
!define TRIAL_NAME_KEY "Software\Classes\SldWorks.Application"
!define TRIAL_CLASS "{6E1B5B0A-3C0F-4C58-9C57-2A7D8F1E40B3}"

Name "Tarnwick"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Tarnwick"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
RequestExecutionLevel user
SetCompressor /SOLID lzma
SetDateSave off
AllowSkipFiles off
ManifestDPIAware true
BrandingText "Tarnwick ${VERSION}"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\tarnwick.exe"
!define MUI_FINISHPAGE_RUN_NOTCHECKED
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "French"

VIProductVersion "${VERSION}.0.0"
VIAddVersionKey /LANG=${LANG_FRENCH} "ProductName" "Tarnwick"
VIAddVersionKey /LANG=${LANG_FRENCH} "CompanyName" "Mervale"
VIAddVersionKey /LANG=${LANG_FRENCH} "FileDescription" "Installation de Tarnwick"
VIAddVersionKey /LANG=${LANG_FRENCH} "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=${LANG_FRENCH} "LegalCopyright" "Mervale"

; Exit codes of a silent run, beside NSIS's own.
!define PROGRAM_IN_USE 2
!define WINDOWS_TOO_OLD 3
!define FILE_NOT_WRITABLE 4

!define /ifndef OPEN_EXISTING 3

Function .onInit
  ${IfNot} ${AtLeastBuild} ${WINDOWS_BUILD}
    MessageBox MB_OK|MB_ICONSTOP \
      "Tarnwick demande Windows 10, version 1903, ou plus récent. Rien n'a été installé." /SD IDOK
    SetErrorLevel ${WINDOWS_TOO_OLD}
    Quit
  ${EndIf}
FunctionEnd

; A program that runs can't be replaced or removed: its file can't be opened for writing, because it is shared, while a
; file that may not be written at all says so.
!macro RequireWritable PROGRAM
  ${Do}
    ${IfNot} ${FileExists} "$INSTDIR\${PROGRAM}.exe"
      ${ExitDo}
    ${EndIf}
    System::Call 'kernel32::CreateFileW(w "$INSTDIR\${PROGRAM}.exe", i ${GENERIC_WRITE}, i ${FILE_SHARE_READ}, \
      p 0, i ${OPEN_EXISTING}, i 0, p 0) p .r0 ?e'
    Pop $1
    ${If} $0 P<> ${INVALID_HANDLE_VALUE}
      System::Call 'kernel32::CloseHandle(p r0)'
      ${ExitDo}
    ${EndIf}
    ${If} $1 = ${ERROR_SHARING_VIOLATION}
      StrCpy $2 "${PROGRAM}.exe est en cours d'exécution, ou un autre programme le tient. Fermez-le, puis recommencez."
      SetErrorLevel ${PROGRAM_IN_USE}
    ${Else}
      StrCpy $2 "$INSTDIR\${PROGRAM}.exe ne peut pas être écrit. Vérifiez son attribut « lecture seule » et vos \
        droits sur ce dossier, puis recommencez."
      SetErrorLevel ${FILE_NOT_WRITABLE}
    ${EndIf}
    ${If} ${Cmd} `MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$2" /SD IDCANCEL IDCANCEL`
      Abort
    ${EndIf}
    SetErrorLevel 0
  ${Loop}
!macroend

Section "Tarnwick" SECTION_TARNWICK
  !insertmacro RequireWritable tarnwick
  !insertmacro RequireWritable tarnwick-trialcad
  SetOutPath "$INSTDIR"
  File "${FILES}\tarnwick.exe"
  File "${FILES}\tarnwick-trialcad.exe"
  File "${FILES}\LISEZMOI.txt"
  File "${FILES}\guide.html"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  CreateDirectory "$SMPROGRAMS\Tarnwick"
  CreateShortcut "$SMPROGRAMS\Tarnwick\Tarnwick.lnk" "$INSTDIR\tarnwick.exe"
  CreateShortcut "$SMPROGRAMS\Tarnwick\Session d'essai.lnk" "$INSTDIR\tarnwick-trialcad.exe"
  CreateShortcut "$SMPROGRAMS\Tarnwick\Guide.lnk" "$INSTDIR\guide.html"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "Tarnwick"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "Mervale"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\tarnwick.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  SectionGetSize ${SECTION_TARNWICK} $0
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" $0
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

; The user's own files, tarnwick.lst and tarnwick.cfg, stay: a directory is only removed when it is empty.
Section Uninstall
  !insertmacro RequireWritable tarnwick
  !insertmacro RequireWritable tarnwick-trialcad
  Delete "$INSTDIR\tarnwick.exe"
  Delete "$INSTDIR\tarnwick-trialcad.exe"
  Delete "$INSTDIR\LISEZMOI.txt"
  Delete "$INSTDIR\guide.html"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\Tarnwick\Tarnwick.lnk"
  Delete "$SMPROGRAMS\Tarnwick\Session d'essai.lnk"
  Delete "$SMPROGRAMS\Tarnwick\Guide.lnk"
  RMDir "$SMPROGRAMS\Tarnwick"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
  ; What a trial session that was killed left behind; a real installation's class stays.
  ReadRegStr $0 HKCU "${TRIAL_NAME_KEY}\CLSID" ""
  ${If} $0 == "${TRIAL_CLASS}"
    DeleteRegKey HKCU "${TRIAL_NAME_KEY}"
    DeleteRegKey HKCU "Software\Classes\CLSID\${TRIAL_CLASS}"
  ${EndIf}
SectionEnd

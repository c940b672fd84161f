; The per-user installer. It needs no administrator: the program writes its files beside itself, so it lives where its
; user may write. Called with -DVERSION, -DFILES (the directory of what is installed), -DICON and -DOUTPUT.
Unicode true
Target amd64-unicode
!include MUI2.nsh

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Tarnwick"

Name "Tarnwick"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Tarnwick"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
RequestExecutionLevel user
SetCompressor /SOLID lzma
SetDateSave off
ManifestDPIAware true

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
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

; A program that runs can't be replaced or removed: its file can't be opened for writing.
!macro WaitUntilClosed PROGRAM
  again_${PROGRAM}:
  IfFileExists "$INSTDIR\${PROGRAM}.exe" 0 closed_${PROGRAM}
  ClearErrors
  FileOpen $0 "$INSTDIR\${PROGRAM}.exe" a
  IfErrors 0 free_${PROGRAM}
  MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION \
    "${PROGRAM}.exe est en cours d'exécution. Fermez-le, puis choisissez Recommencer." \
    /SD IDCANCEL IDRETRY again_${PROGRAM}
  SetErrorLevel 2
  Abort
  free_${PROGRAM}:
  FileClose $0
  closed_${PROGRAM}:
!macroend

Section
  !insertmacro WaitUntilClosed tarnwick
  !insertmacro WaitUntilClosed tarnwick-trialcad
  SetOutPath "$INSTDIR"
  File "${FILES}\tarnwick.exe"
  File "${FILES}\tarnwick-trialcad.exe"
  File "${FILES}\LISEZMOI.txt"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  CreateDirectory "$SMPROGRAMS\Tarnwick"
  CreateShortcut "$SMPROGRAMS\Tarnwick\Tarnwick.lnk" "$INSTDIR\tarnwick.exe"
  CreateShortcut "$SMPROGRAMS\Tarnwick\Session d'essai.lnk" "$INSTDIR\tarnwick-trialcad.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "Tarnwick"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "Mervale"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\tarnwick.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

; The user's own files, tarnwick.lst and tarnwick.cfg, stay: a directory is only removed when it is empty.
Section Uninstall
  !insertmacro WaitUntilClosed tarnwick
  !insertmacro WaitUntilClosed tarnwick-trialcad
  Delete "$INSTDIR\tarnwick.exe"
  Delete "$INSTDIR\tarnwick-trialcad.exe"
  Delete "$INSTDIR\LISEZMOI.txt"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\Tarnwick\Tarnwick.lnk"
  Delete "$SMPROGRAMS\Tarnwick\Session d'essai.lnk"
  RMDir "$SMPROGRAMS\Tarnwick"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
SectionEnd

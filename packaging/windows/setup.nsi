; The installer: for the player alone, without an administrator. Silent with /S; /D=FOLDER, last, installs elsewhere.
; build.sh gives VERSION, TREE (what to install), LIST (the lines that remove just that) and OUT.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user
ManifestDPIAware true
!include MUI2.nsh
!include FileFunc.nsh

!define ENTRY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Bogenwerker"
Name "Bogenwerker ${VERSION}"
OutFile "${OUT}"
InstallDir "$LOCALAPPDATA\Programs\Bogenwerker"
InstallDirRegKey HKCU "${ENTRY}" InstallLocation
VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=1031 ProductName "Bogenwerker"
VIAddVersionKey /LANG=1031 ProductVersion "${VERSION}"
VIAddVersionKey /LANG=1031 FileDescription "Bogenwerker einrichten"
VIAddVersionKey /LANG=1031 FileVersion "${VERSION}"
VIAddVersionKey /LANG=1031 LegalCopyright ""

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\Bogenwerker.exe"
!define MUI_FINISHPAGE_RUN_TEXT "Bogenwerker starten"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "German"

; A program that runs cannot be opened for writing.
!macro EnsureClosed
  IfFileExists "$INSTDIR\bin\bogenwerker.exe" 0 closed
  ClearErrors
  FileOpen $0 "$INSTDIR\bin\bogenwerker.exe" a
  IfErrors 0 +4
    MessageBox MB_OK|MB_ICONSTOP "Der Bogenwerker läuft noch oder seine Dateien sind gesperrt. Bitte beenden Sie ihn \
      und versuchen Sie es dann noch einmal." /SD IDOK
    SetErrorLevel 2
    Quit
  FileClose $0
  closed:
!macroend

Section
  !insertmacro EnsureClosed
  ; What an older version brought goes first, so that nothing of it stays behind.
  IfFileExists "$INSTDIR\uninstall.exe" 0 +2
    ExecWait '"$INSTDIR\uninstall.exe" /S _?=$INSTDIR'
  SetOutPath "$INSTDIR"
  File /r "${TREE}/*"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  CreateShortcut "$SMPROGRAMS\Bogenwerker.lnk" "$INSTDIR\Bogenwerker.exe"
  WriteRegStr HKCU "${ENTRY}" DisplayName "Bogenwerker"
  WriteRegStr HKCU "${ENTRY}" DisplayVersion "${VERSION}"
  WriteRegStr HKCU "${ENTRY}" DisplayIcon "$INSTDIR\Bogenwerker.exe"
  WriteRegStr HKCU "${ENTRY}" InstallLocation "$INSTDIR"
  WriteRegStr HKCU "${ENTRY}" UninstallString '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${ENTRY}" QuietUninstallString '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${ENTRY}" NoModify 1
  WriteRegDWORD HKCU "${ENTRY}" NoRepair 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD HKCU "${ENTRY}" EstimatedSize $0
SectionEnd

; Takes away what was brought, nothing else: the player's folder stays, and whatever somebody laid beside.
Section Uninstall
  !insertmacro EnsureClosed
  !include "${LIST}"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\Bogenwerker.lnk"
  DeleteRegKey HKCU "${ENTRY}"
SectionEnd

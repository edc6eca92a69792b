; The setup, for one user and without an administrator:
;     makensis -DVERSION=2.7.5 -DFOLDER=what-is-installed -DICON=file.ico -DOUTPUT=setup.exe setup.nsi
; What its user keeps, settings, back-ups and sounds, lies in %LOCALAPPDATA%\Marlbrook, where setup and uninstaller do nothing.
Target amd64-unicode
!include MUI2.nsh
!include FileFunc.nsh
!include TextFunc.nsh

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Marlbrook"

Name "Marlbrook"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Marlbrook"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
RequestExecutionLevel user
ManifestDPIAware true
SetCompressor /SOLID lzma
VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "Marlbrook"
VIAddVersionKey FileDescription "Setup of Marlbrook, tally counter for the microscope"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey CompanyName "The Marlbrook maintainers"
VIAddVersionKey LegalCopyright "The Marlbrook maintainers"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\bin\marlbrook.exe"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; What the version that is there has laid down, and nothing else that may lie there: its list has the files and, behind them, the folders,
; the deepest first.
!define LIST "$INSTDIR\share\marlbrook\laid_down.txt"
!macro RemoveFiles un
  Function ${un}RemoveFiles
    Rename "${LIST}" "$PLUGINSDIR\laid_down.txt"
    ClearErrors
    FileOpen $0 "$PLUGINSDIR\laid_down.txt" r
    IfErrors gone
  next:
    ClearErrors
    FileRead $0 $1
    IfErrors end
    ${TrimNewLines} $1 $1
    Delete "$INSTDIR\$1"
    RMDir "$INSTDIR\$1"
    Goto next
  end:
    FileClose $0
  gone:
  FunctionEnd
!macroend
!insertmacro RemoveFiles ""
!insertmacro RemoveFiles "un."

; A program that runs holds its file: Windows then lets nobody open it for writing. Nor does it where the user may not change it.
!define IN_USE "cannot be replaced: it is running, or you may not write there. If Marlbrook runs, save your sheet, end it, and try again."
!macro RefuseUnlessFree un
  Function ${un}RefuseUnlessFree
    Exch $1
    IfFileExists "$1" 0 free
    ClearErrors
    FileOpen $0 "$1" a
    IfErrors 0 close
    MessageBox MB_OK|MB_ICONEXCLAMATION "$1 ${IN_USE}" /SD IDOK
    SetErrorLevel 2
    Abort
  close:
    FileClose $0
  free:
    Pop $1
  FunctionEnd
!macroend
!insertmacro RefuseUnlessFree ""
!insertmacro RefuseUnlessFree "un."
!macro RefuseUnlessProgramsAreFree un
  Push "$INSTDIR\bin\marlbrook.exe"
  Call ${un}RefuseUnlessFree
  Push "$INSTDIR\bin\marlbrook-figure.exe"
  Call ${un}RefuseUnlessFree
!macroend

Section "Marlbrook"
  !insertmacro RefuseUnlessProgramsAreFree ""
  InitPluginsDir
  Call RemoveFiles
  SetOutPath "$INSTDIR"
  File /r "${FOLDER}/*"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  CreateShortcut "$SMPROGRAMS\Marlbrook.lnk" "$INSTDIR\bin\marlbrook.exe"
  CreateShortcut "$SMPROGRAMS\Marlbrook manual.lnk" "$INSTDIR\share\doc\marlbrook\manual\index.html"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "Marlbrook"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\bin\marlbrook.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "The Marlbrook maintainers"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" $0
SectionEnd

Section "Uninstall"
  !insertmacro RefuseUnlessProgramsAreFree "un."
  InitPluginsDir
  Call un.RemoveFiles
  Delete "$SMPROGRAMS\Marlbrook.lnk"
  Delete "$SMPROGRAMS\Marlbrook manual.lnk"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
SectionEnd

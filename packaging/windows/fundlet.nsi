; The installer. It takes VERSION, FOLDER (all that is installed), REMOVAL (the commands that remove
; it) and OUTPUT from packaging/windows/build-package.
Unicode true
Target amd64-unicode
ManifestDPIAware true
RequestExecutionLevel user
SetCompressor /SOLID lzma

!include MUI2.nsh

!define REGISTRY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Fundlet"
!define SHORTCUT "$SMPROGRAMS\Fundlet.lnk"

Name "Fundlet ${VERSION}"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Fundlet"
InstallDirRegKey HKCU "${REGISTRY}" "InstallLocation"
BrandingText " "

!define MUI_ICON "${FOLDER}\..\fundlet.ico"
!define MUI_UNICON "${MUI_ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\fundlet.exe"
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

!macro VERSION_TEXT name text
  VIAddVersionKey /LANG=1033 "${name}" "${text}"
!macroend
VIProductVersion "${DOTTED_VERSION}"
!insertmacro VERSION_TEXT "ProductName" "Fundlet"
!insertmacro VERSION_TEXT "ProductVersion" "${VERSION}"
!insertmacro VERSION_TEXT "FileDescription" "Fundlet Setup"
!insertmacro VERSION_TEXT "FileVersion" "${VERSION}"
!insertmacro VERSION_TEXT "LegalCopyright" ""

; A program that runs can be neither replaced nor removed.
!macro REFUSE_WHILE_IT_RUNS
  ClearErrors
  ${If} ${FileExists} "$INSTDIR\fundlet.exe"
    FileOpen $0 "$INSTDIR\fundlet.exe" a
    ${If} ${Errors}
      MessageBox MB_OK|MB_ICONEXCLAMATION "Fundlet is open. Close it, and then start this again." /SD IDOK
      SetErrorLevel 2
      Quit
    ${EndIf}
    FileClose $0
  ${EndIf}
!macroend

Function .onInit
  !insertmacro REFUSE_WHILE_IT_RUNS
FunctionEnd

Function un.onInit
  !insertmacro REFUSE_WHILE_IT_RUNS
FunctionEnd

Section
  ; An older version may have files that this one has not.
  ${If} ${FileExists} "$INSTDIR\uninstall.exe"
    ExecWait '"$INSTDIR\uninstall.exe" /S _?=$INSTDIR'
  ${EndIf}
  SetOutPath "$INSTDIR"
  File /r "${FOLDER}\*"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  CreateShortcut "${SHORTCUT}" "$INSTDIR\fundlet.exe"
  WriteRegStr HKCU "${REGISTRY}" "DisplayName" "Fundlet"
  WriteRegStr HKCU "${REGISTRY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${REGISTRY}" "DisplayIcon" "$INSTDIR\fundlet.exe"
  WriteRegStr HKCU "${REGISTRY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${REGISTRY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${REGISTRY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${REGISTRY}" "NoModify" 1
  WriteRegDWORD HKCU "${REGISTRY}" "NoRepair" 1
SectionEnd

; The plan stays where it is: it lies elsewhere, in the user's own folder.
Section "un."
  SetOutPath "$TEMP"
  !include "${REMOVAL}"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  Delete "${SHORTCUT}"
  DeleteRegKey HKCU "${REGISTRY}"
SectionEnd

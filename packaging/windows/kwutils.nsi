; The installer: the 32-bit library on every Windows, and the 64-bit one beside it where there is one.
;
;   setup.exe [/S] [/AllUsers | /CurrentUser] [/D=FOLDER]
;
; Made with: VERSION (1.02.0012), NUMBERS (1.2.0.12), FILES (a folder with x86, x64 and what both
; share), ENTRIES (what registers the classes), REMOVAL (what deletes the files again), OUTPUT.
Unicode true
SetCompressor /SOLID lzma

!include LogicLib.nsh
!include x64.nsh

!define PRODUCT "kwUtils"
!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\kwUtils"
!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_MUI
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_USE_PROGRAMFILES64
!define MULTIUSER_INSTALLMODE_INSTDIR "${PRODUCT}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "${UNINSTALL}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME "InstallLocation"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY "${UNINSTALL}"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME "UninstallString"
!include MultiUser.nsh
!include MUI2.nsh
!include "${ENTRIES}"
!include "${REMOVAL}"

Name "${PRODUCT} ${VERSION}"
OutFile "${OUTPUT}"
BrandingText " "
VIProductVersion "${NUMBERS}"
VIAddVersionKey ProductName "${PRODUCT}"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "Installs ${PRODUCT}"
VIAddVersionKey LegalCopyright "the kwUtils authors"

!insertmacro MUI_PAGE_LICENSE "${FILES}/LICENSE.txt"
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

!macro REMOVE_ENTRIES
  SetRegView 32
  !insertmacro KW_UNREGISTER "win32"
  ${If} ${RunningX64}
    SetRegView 64
    !insertmacro KW_UNREGISTER "win64"
  ${EndIf}
  SetRegView 32
  DeleteRegKey SHCTX "${UNINSTALL}"
!macroend

; A library that a program has loaded can be neither replaced nor deleted: nothing is changed then.
!macro REFUSE_WHILE_IN_USE KIND
Function ${KIND}RefuseWhileInUse
  ReadRegStr $0 SHCTX "${UNINSTALL}" "InstallLocation"
  ${If} $0 == ""
    StrCpy $0 $INSTDIR
  ${EndIf}
  ${For} $1 1 2
    StrCpy $2 "$0\x86\KWUTILS.DLL"
    ${If} $1 = 2
      StrCpy $2 "$0\x64\KWUTILS.DLL"
    ${EndIf}
    ${If} ${FileExists} $2
      ClearErrors
      FileOpen $3 $2 a
      ${If} ${Errors}
        SetErrorLevel 3
        Abort "$2 is in use. Close the programs that use it and try again."
      ${EndIf}
      FileClose $3
    ${EndIf}
  ${Next}
FunctionEnd
!macroend
!insertmacro REFUSE_WHILE_IN_USE ""
!insertmacro REFUSE_WHILE_IN_USE "un."

; An earlier version takes itself away first, from wherever it was put.
Function RemoveEarlier
  ReadRegStr $0 SHCTX "${UNINSTALL}" "InstallLocation"
  ${If} $0 != ""
  ${AndIf} ${FileExists} "$0\uninstall.exe"
    ExecWait '"$0\uninstall.exe" /S /$MultiUser.InstallMode _?=$0'
    ; It cannot delete itself while it is waited for.
    Delete "$0\uninstall.exe"
    RMDir "$0"
  ${EndIf}
FunctionEnd

Function .onInit
  ; Empty but for /D, which would be lost otherwise.
  StrCpy $0 $INSTDIR
  !insertmacro MULTIUSER_INIT
  ${If} $0 != ""
    StrCpy $INSTDIR $0
  ${EndIf}
FunctionEnd

Function un.onInit
  !insertmacro MULTIUSER_UNINIT
FunctionEnd

Section
  Call RefuseWhileInUse
  Call RemoveEarlier
  SetOutPath "$INSTDIR"
  File "${FILES}/LICENSE.txt"
  File "${FILES}/README.txt"
  File /r "${FILES}/licences"
  File /r "${FILES}/include"
  File /r "${FILES}/examples"
  File /r "${FILES}/x86"
  SetRegView 32
  !insertmacro KW_REGISTER "$INSTDIR\x86" "win32"
  ${If} ${RunningX64}
    File /r "${FILES}/x64"
    SetRegView 64
    !insertmacro KW_REGISTER "$INSTDIR\x64" "win64"
    SetRegView 32
  ${EndIf}
  WriteUninstaller "$INSTDIR\uninstall.exe"
  WriteRegStr SHCTX "${UNINSTALL}" "DisplayName" "${PRODUCT}"
  WriteRegStr SHCTX "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr SHCTX "${UNINSTALL}" "Publisher" "the kwUtils authors"
  WriteRegStr SHCTX "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr SHCTX "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe" /$MultiUser.InstallMode'
  WriteRegStr SHCTX "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S /$MultiUser.InstallMode'
  WriteRegDWORD SHCTX "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD SHCTX "${UNINSTALL}" "NoRepair" 1
SectionEnd

Section Uninstall
  Call un.RefuseWhileInUse
  !insertmacro REMOVE_ENTRIES
  ; The files that were put there, and the folders where nobody else put any.
  !insertmacro KW_REMOVE_FILES
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
SectionEnd

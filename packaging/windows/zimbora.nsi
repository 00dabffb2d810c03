; The installer: for the user who runs it, so that no administrator is needed. make_packages.sh gives
;   VERSION  the program's version
;   FILES    file with the macros install_files, install_word_lists and remove_files
;   PLAYLIST path of the initial playlist
;   SIZE     of what is installed, in KiB
;   ICON, PICTURE, OUTPUT  paths of the icon, the picture at the side of the first page, and the installer
; "/S" installs without questions, "/D=<folder>" into another folder. The exit code is 2 when it has failed, or when
; nothing was done because the program is running.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
; A part that cannot be written ends the installation.
AllowSkipFiles off
RequestExecutionLevel user
ManifestDPIAware true
ManifestSupportedOS Win10

!include LogicLib.nsh
!include MUI2.nsh
!include WinVer.nsh
!include "${FILES}"

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Zimbora"
!define CLASSES "Software\Classes"
!define LIST_CLASS "Zimbora.WordList"
!define UNINSTALLER "Eltávolítás.exe"
!define PROGRAM "$INSTDIR\program\zimbora.exe"
!define SHORTCUT "$SMPROGRAMS\Zimbora.lnk"

Name "Zimbora"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Zimbora"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" InstallLocation
BrandingText "Zimbora ${VERSION}"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${PICTURE}"
!define MUI_UNWELCOMEFINISHPAGE_BITMAP "${PICTURE}"
!define MUI_ABORTWARNING
!define MUI_ABORTWARNING_TEXT "Kilép a telepítőből? Még semmi sem változott."

!define MUI_WELCOMEPAGE_TITLE "A Zimbora ${VERSION} telepítése"
!define MUI_WELCOMEPAGE_TEXT "Angol–magyar, magyar–angol szótár és szótanuló program.$\r$\n$\r$\n\
A telepítéshez nem kell rendszergazdai jog: a program csak az Ön felhasználói fiókjába kerül. \
A szószedetei és a beállításai frissítéskor megmaradnak.$\r$\n$\r$\n$_CLICK"
!insertmacro MUI_PAGE_WELCOME
!define MUI_PAGE_HEADER_SUBTEXT "Válassza ki, melyik mappába kerüljön a Zimbora."
!define MUI_DIRECTORYPAGE_TEXT_TOP "A program a szószedeteket elsőként ennek a mappának a „program” almappájába ajánlja \
menteni, ezért olyan mappát válasszon, amelybe írhat, és amelynek a nevében nincs pont."
!define MUI_PAGE_CUSTOMFUNCTION_LEAVE check_folder
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_TITLE "A Zimbora telepítése kész"
!define MUI_FINISHPAGE_TEXT "A programot a start menüből, a szószedeteit (.szs) dupla kattintással is megnyithatja."
!define MUI_FINISHPAGE_RUN "${PROGRAM}"
!define MUI_FINISHPAGE_RUN_TEXT "A Zimbora indítása"
!insertmacro MUI_PAGE_FINISH

!define MUI_COMPONENTSPAGE_NODESC
!define MUI_PAGE_HEADER_TEXT "A Zimbora eltávolítása"
!define MUI_PAGE_HEADER_SUBTEXT "A szószedetei és a saját hangjai, zenéi megmaradnak."
!define MUI_COMPONENTSPAGE_TEXT_TOP "Az „Eltávolítás” gomb eltávolítja a programot és a szótárakat. A beállításait csak akkor \
törli, ha az is be van jelölve."
!define MUI_COMPONENTSPAGE_TEXT_COMPLIST "Ami törlődik:"
!define MUI_PAGE_CUSTOMFUNCTION_SHOW un.hide_space_needed
!insertmacro MUI_UNPAGE_COMPONENTS
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "Hungarian"

VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=${LANG_HUNGARIAN} "ProductName" "Zimbora"
VIAddVersionKey /LANG=${LANG_HUNGARIAN} "ProductVersion" "${VERSION}"
VIAddVersionKey /LANG=${LANG_HUNGARIAN} "FileDescription" "A Zimbora angol-magyar szótár telepítője"
VIAddVersionKey /LANG=${LANG_HUNGARIAN} "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=${LANG_HUNGARIAN} "LegalCopyright" "GNU GPL 3"

; The system locks the file of a program that runs.
!macro require_program_not_running folder
  ${Do}
    ${IfNot} ${FileExists} "${folder}\program\zimbora.exe"
      ${Break}
    ${EndIf}
    ClearErrors
    FileOpen $0 "${folder}\program\zimbora.exe" a
    ${IfNot} ${Errors}
      FileClose $0
      ${Break}
    ${EndIf}
    ${If} ${Cmd} `MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "A Zimbora fut, vagy a fájlja nem írható. \
        Lépjen ki belőle, és próbálja újra." /SD IDCANCEL IDCANCEL`
      Abort "A Zimbora fut, ezért semmi sem változott."
    ${EndIf}
  ${Loop}
!macroend

!macro tell_desktop_of_file_types
  ; SHCNE_ASSOCCHANGED
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
!macroend

Function .onInit
  ${IfNot} ${AtLeastWin10}
    MessageBox MB_OK|MB_ICONSTOP "A Zimborához Windows 10 vagy újabb kell." /SD IDOK
    Abort
  ${EndIf}
FunctionEnd

; Whether something is in the folder that neither an installation nor its removal has left there.
!macro has_files_of_others result
  StrCpy ${result} 0
  ${IfNot} ${FileExists} "$INSTDIR\${UNINSTALLER}"
  ${AndIfNot} ${FileExists} "$INSTDIR\program\*.*"
    FindFirst $0 $1 "$INSTDIR\*"
    ${DoWhile} $1 != ""
      ${If} $1 != "."
      ${AndIf} $1 != ".."
        StrCpy ${result} 1
      ${EndIf}
      FindNext $0 $1
    ${Loop}
    FindClose $0
  ${EndIf}
!macroend

; The program keeps lists in its folder, and takes no list into a folder whose name has a full stop.
Function check_folder
  StrCpy $1 0
  ${Do}
    StrCpy $2 "$INSTDIR" 1 $1
    ${If} $2 == ""
      ${Break}
    ${EndIf}
    ${If} $2 == "."
      ${If} ${Cmd} `MessageBox MB_OKCANCEL|MB_ICONINFORMATION "A mappa nevében pont van: $INSTDIR$\r$\n$\r$\nA program az \
          ilyen mappába nem tud szószedetet menteni; a szószedeteket máshová kell majd mentenie. Így is ide telepíti?" \
          IDCANCEL`
        Abort
      ${EndIf}
      ${Break}
    ${EndIf}
    IntOp $1 $1 + 1
  ${Loop}
  !insertmacro has_files_of_others $2
  ${If} $2 = 1
    ${If} ${Cmd} `MessageBox MB_OKCANCEL|MB_DEFBUTTON2|MB_ICONEXCLAMATION "Ebben a mappában már más fájlok vannak: $INSTDIR$\r$\n$\r$\nA \
        telepítés az azonos nevűeket felülírja. Így is ide telepíti?" IDCANCEL`
      Abort
    ${EndIf}
  ${EndIf}
  ClearErrors
  CreateDirectory "$INSTDIR"
  GetTempFileName $0 "$INSTDIR"
  ${If} ${Errors}
    MessageBox MB_OK|MB_ICONEXCLAMATION "Ebbe a mappába nem írhat: $INSTDIR$\r$\n$\r$\nVálasszon másikat."
    Abort
  ${EndIf}
  Delete $0
  ; Stays when something is in it.
  RMDir "$INSTDIR"
FunctionEnd

Function un.hide_space_needed
  FindWindow $0 "#32770" "" $HWNDPARENT
  GetDlgItem $0 $0 1023
  ShowWindow $0 ${SW_HIDE}
FunctionEnd

Section
  ReadRegStr $R1 HKCU "${UNINSTALL_KEY}" InstallLocation
  !insertmacro require_program_not_running "$INSTDIR"
  ${If} $R1 != ""
    !insertmacro require_program_not_running "$R1"
  ${EndIf}
  ${If} ${Silent}
    !insertmacro has_files_of_others $2
    ${If} $2 = 1
      Abort "A mappában más fájlok vannak, ezért semmi sem változott."
    ${EndIf}
  ${EndIf}

  StrCpy $R3 0
  ${If} ${FileExists} "$INSTDIR\${UNINSTALLER}"
    StrCpy $R3 1
  ${EndIf}
  ; What can be removed again is known from the beginning, so that an installation that is broken off can be, too. A
  ; former version in the same folder is written over: every version so far has had the same parts.
  SetOutPath "$INSTDIR"
  WriteUninstaller "$INSTDIR\${UNINSTALLER}"
  !insertmacro install_files

  ; Not with an update of a version that has given them: what the user has deleted of them does not come back.
  ReadRegStr $R2 HKCU "${UNINSTALL_KEY}" WordListsGiven
  ${If} $R2 == ""
  ${OrIf} $R3 = 0
    !insertmacro install_word_lists
  ${EndIf}

  ; One in another folder goes when this one is there, which takes over its settings.
  ${If} $R1 != ""
  ${AndIf} $R1 != $INSTDIR
  ${AndIf} ${FileExists} "$R1\${UNINSTALLER}"
    CopyFiles /SILENT "$R1\program\kavaro\*.ini" "$INSTDIR\program\kavaro"
    ExecWait '"$R1\${UNINSTALLER}" /S _?=$R1'
    Delete "$R1\${UNINSTALLER}"
    RMDir "$R1"
  ${EndIf}

  ; The working folder of the shortcut.
  SetOutPath "$INSTDIR\program"
  CreateShortcut "${SHORTCUT}" "${PROGRAM}" "" "" "" "" "" "Angol–magyar szótár és szótanuló"

  ; What opened word lists before does so again after the removal.
  ReadRegStr $1 HKCU "${CLASSES}\.szs" ""
  ${If} $1 != ""
  ${AndIf} $1 != "${LIST_CLASS}"
    WriteRegStr HKCU "${CLASSES}\.szs" "Zimbora.Former" "$1"
  ${EndIf}
  WriteRegStr HKCU "${CLASSES}\.szs" "" "${LIST_CLASS}"
  WriteRegStr HKCU "${CLASSES}\.szs\OpenWithProgids" "${LIST_CLASS}" ""
  WriteRegStr HKCU "${CLASSES}\${LIST_CLASS}" "" "Zimbora szószedet"
  WriteRegStr HKCU "${CLASSES}\${LIST_CLASS}\DefaultIcon" "" "${PROGRAM},0"
  WriteRegStr HKCU "${CLASSES}\${LIST_CLASS}\shell\open\command" "" '"${PROGRAM}" "%1"'
  !insertmacro tell_desktop_of_file_types

  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "Zimbora"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "${PROGRAM},0"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "Zimbora"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\${UNINSTALLER}"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\${UNINSTALLER}" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" ${SIZE}
  WriteRegStr HKCU "${UNINSTALL_KEY}" "WordListsGiven" "1"
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

; $0 = 1 when the files $1 and $2 have the same bytes. They are compared as wholes: each instruction costs a step of the
; progress bar on the screen, so that a loop over the bytes takes minutes.
Function un.have_same_bytes
  StrCpy $0 0
  ClearErrors
  FileOpen $3 "$1" r
  FileOpen $4 "$2" r
  ${IfNot} ${Errors}
    FileSeek $3 0 END $5
    FileSeek $4 0 END $6
    ${If} $5 = $6
      FileSeek $3 0
      FileSeek $4 0
      System::Alloc $5
      Pop $7
      System::Alloc $5
      Pop $8
      System::Call 'kernel32::ReadFile(p r3, p r7, i r5, *i .r1, p 0)'
      System::Call 'kernel32::ReadFile(p r4, p r8, i r5, *i .r2, p 0)'
      System::Call 'ntdll::RtlCompareMemory(p r7, p r8, p r5) p .r6'
      ${If} $1 = $5
      ${AndIf} $2 = $5
      ${AndIf} $6 = $5
        StrCpy $0 1
      ${EndIf}
      System::Free $7
      System::Free $8
    ${EndIf}
  ${EndIf}
  FileClose $3
  FileClose $4
FunctionEnd

; Removes an initial setting or a given word list that has not been changed: "file" has the same bytes as the one it was
; installed from.
!macro remove_when_unchanged file original
  ${If} ${FileExists} "${file}"
    InitPluginsDir
    File "/oname=$PLUGINSDIR\original" "${original}"
    StrCpy $1 "${file}"
    StrCpy $2 "$PLUGINSDIR\original"
    Call un.have_same_bytes
    ${If} $0 = 1
      Delete "${file}"
    ${EndIf}
  ${EndIf}
!macroend

Function un.unregister
  Delete "${SHORTCUT}"

  ReadRegStr $1 HKCU "${CLASSES}\.szs" ""
  ${If} $1 == "${LIST_CLASS}"
    ReadRegStr $2 HKCU "${CLASSES}\.szs" "Zimbora.Former"
    ${If} $2 == ""
      DeleteRegValue HKCU "${CLASSES}\.szs" ""
    ${Else}
      WriteRegStr HKCU "${CLASSES}\.szs" "" "$2"
    ${EndIf}
  ${EndIf}
  DeleteRegValue HKCU "${CLASSES}\.szs" "Zimbora.Former"
  DeleteRegValue HKCU "${CLASSES}\.szs\OpenWithProgids" "${LIST_CLASS}"
  DeleteRegKey /ifempty HKCU "${CLASSES}\.szs\OpenWithProgids"
  DeleteRegKey /ifnosubkeys /ifnovalues HKCU "${CLASSES}\.szs"
  DeleteRegKey HKCU "${CLASSES}\${LIST_CLASS}"
  !insertmacro tell_desktop_of_file_types

  ; The browser control of the help is asked for its newest engine by this.
  DeleteRegValue HKCU "Software\Microsoft\Internet Explorer\Main\FeatureControl\FEATURE_BROWSER_EMULATION" "zimbora.exe"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
FunctionEnd

Section "un.A program és a szótárak"
  SectionIn RO
  !insertmacro require_program_not_running "$INSTDIR"
  !insertmacro remove_files
  !insertmacro remove_when_unchanged "$INSTDIR\program\kavaro\zenebeáll.ini" "${PLAYLIST}"
  Delete "$INSTDIR\${UNINSTALLER}"

  ; What Windows knows of the program may be another installation, when this folder was moved from its place.
  ReadRegStr $1 HKCU "${UNINSTALL_KEY}" InstallLocation
  ${If} $1 == $INSTDIR
  ${OrIfNot} ${FileExists} "$1\${UNINSTALLER}"
    Call un.unregister
  ${EndIf}
SectionEnd

; The files that the program keeps on drive C, or in its stand-in: see src/platform/drive_c.h.
!macro remove_files_of_drive_c root
  Delete "${root}\zbrmkfnh.ini"
  Delete "${root}\zbrmk\angol\kisablak.ini"
  Delete "${root}\zbrmk\kavaro\zenebeáll.ini"
  RMDir "${root}\zbrmk\angol"
  RMDir "${root}\zbrmk\kavaro"
  RMDir "${root}\zbrmk"
!macroend

Section /o "un.A beállítások"
  DeleteRegKey HKCU "Software\Zimbora\szotar"
  DeleteRegKey /ifempty HKCU "Software\Zimbora"
  Delete "$INSTDIR\program\kavaro\zenebeáll.ini"
  Delete "$INSTDIR\program\kavaro\grathang.ini"
  Delete "$INSTDIR\program\kavaro\helyeshang.ini"
  Delete "$INSTDIR\program\kavaro\hibahang.ini"
  !insertmacro remove_files_of_drive_c "C:"
  !insertmacro remove_files_of_drive_c "$LOCALAPPDATA\Zimbora\c"
  RMDir "$LOCALAPPDATA\Zimbora\c"
  RMDir "$LOCALAPPDATA\Zimbora"
SectionEnd

; Last: the folders that nothing is left in.
Section -un.
  RMDir "$INSTDIR\program\kavaro"
  RMDir "$INSTDIR\program"
  RMDir "$INSTDIR"
  ${If} ${FileExists} "$INSTDIR\program\*.szs"
  ${OrIf} ${FileExists} "$INSTDIR\program\szószedetek\*.szs"
    MessageBox MB_OK|MB_ICONINFORMATION "A szószedetei itt maradtak:$\r$\n$INSTDIR\program" /SD IDOK
  ${EndIf}
SectionEnd

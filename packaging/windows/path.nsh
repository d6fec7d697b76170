; The machine's path. It is longer than a text of this language may be, which would cut it, so it stays in
; memory of its own.

!define ENVIRONMENT "SYSTEM\CurrentControlSet\Control\Session Manager\Environment"

!macro ChangePath un

; Takes the folder $0 out of the path wherever it stands there, and with $1 "add" puts it at the end. All other
; entries stay as they are, to the letter.
Function ${un}ChangePath
  ; HKEY_LOCAL_MACHINE, to be read and written.
  System::Call 'advapi32::RegOpenKeyExW(p -2147483646, w "${ENVIRONMENT}", i 0, i 0x2001F, *p .r2) i .r3'
  ${If} $3 <> 0
    DetailPrint "The path can't be changed: error $3"
    SetErrors
    Return
  ${EndIf}
  System::Call 'advapi32::RegQueryValueExW(p r2, w "Path", p 0, *i 0 r4, p 0, *i 0 r5) i .r3'
  ${If} $3 == 2 ; there is none
    StrCpy $4 2 ; REG_EXPAND_SZ
    StrCpy $5 0
  ${ElseIf} $3 <> 0
    DetailPrint "The path can't be read: error $3"
    System::Call 'advapi32::RegCloseKey(p r2)'
    SetErrors
    Return
  ${EndIf}

  ; A semicolon at either end lets each entry be found between two. Room for them, the folder and the end.
  StrLen $6 $0
  IntOp $7 $6 * 2
  IntOp $7 $7 + $5
  IntOp $7 $7 + 16
  System::Alloc $7
  Pop $8
  IntPtrOp $9 $8 + 2
  System::Call 'kernel32::lstrcpyW(p r8, w ";")'
  ${If} $5 > 0
    System::Call 'advapi32::RegQueryValueExW(p r2, w "Path", p 0, *i 0 r4, p r9, *i r5 r5) i .r3'
    ${If} $3 <> 0
      DetailPrint "The path can't be read: error $3"
      System::Free $8
      System::Call 'advapi32::RegCloseKey(p r2)'
      SetErrors
      Return
    ${EndIf}
  ${EndIf}
  System::Call 'kernel32::lstrcatW(p r8, w ";")'

  StrCpy $3 ";$0;"
  IntOp $6 $6 + 1
  IntOp $6 $6 * 2
  StrCpy $7 unchanged
  ${Do}
    System::Call 'shlwapi::StrStrIW(p r8, w r3) p .R0'
    ${If} $R0 == 0
      ${ExitDo}
    ${EndIf}
    IntPtrOp $R1 $R0 + $6
    System::Call 'kernel32::lstrlenW(p R1) i .R2'
    IntOp $R2 $R2 + 1
    IntOp $R2 $R2 * 2
    System::Call 'kernel32::RtlMoveMemory(p R0, p R1, p R2)'
    StrCpy $7 changed
  ${Loop}

  System::Call 'kernel32::lstrlenW(p r8) i .R2'
  ${If} $1 == add
    System::Call 'kernel32::lstrcatW(p r8, w r0)'
    StrCpy $7 changed
  ${ElseIf} $R2 > 1
    IntOp $R2 $R2 - 1
    IntOp $R2 $R2 * 2
    IntPtrOp $R1 $8 + $R2
    System::Call '*$R1(&i2 0)'
  ${EndIf}
  ${If} $7 == changed
    System::Call 'kernel32::lstrlenW(p r9) i .R2'
    IntOp $R2 $R2 + 1
    IntOp $R2 $R2 * 2
    System::Call 'advapi32::RegSetValueExW(p r2, w "Path", i 0, i r4, p r9, i R2) i .r3'
    ${If} $3 <> 0
      DetailPrint "The path can't be changed: error $3"
      SetErrors
    ${EndIf}
  ${EndIf}
  System::Free $8
  System::Call 'advapi32::RegCloseKey(p r2)'
  ${If} $7 == changed
    ; Whoever opens a command prompt from now on has it.
    SendMessage ${HWND_BROADCAST} ${WM_WININICHANGE} 0 "STR:Environment" /TIMEOUT=5000
  ${EndIf}
FunctionEnd

!macroend

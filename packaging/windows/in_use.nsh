; A program that runs keeps its files: whoever replaces some of them all the same leaves half an installation.

!macro RequireFree un

; Says $0, in a box or to the one who called without windows, and ends with nothing changed.
Function ${un}TellInUse
  ${If} ${Silent}
    System::Call 'kernel32::AttachConsole(i -1)'
    System::Call 'kernel32::GetStdHandle(i -12) p .r1'
    FileWrite $1 "$0$\r$\n"
  ${Else}
    MessageBox MB_OK|MB_ICONSTOP "$0"
  ${EndIf}
  SetErrorLevel ${CODE_IN_USE}
  Quit
FunctionEnd

; Goes on when the file $0 can be written, or isn't there.
Function ${un}RequireFree
  ${DoWhile} ${FileExists} $0
    ClearErrors
    FileOpen $1 $0 a
    ${IfNot} ${Errors}
      FileClose $1
      Return
    ${EndIf}
    ${If} ${Silent}
    ${OrIf} ${Cmd} `MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$0 is in use. Close the program, then choose Retry." IDCANCEL`
      StrCpy $0 "$0 is in use. Nothing was changed."
      Call ${un}TellInUse
    ${EndIf}
  ${Loop}
FunctionEnd

!macroend

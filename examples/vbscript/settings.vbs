' Keeps a program's settings in an INI file: counts its runs and remembers who made the last one.
'
'   cscript //nologo settings.vbs FILE USER
Option Explicit
Dim ini, file, runs, last

file = WScript.Arguments(0)
Set ini = CreateObject("kwUtils.clsIni")

' With a default, a missing key is no reason to bother the user; a missing file gives Empty.
runs = CLng(ini.GetIniAndCheck("program", "runs", "long", file, 0))
last = ini.GetIni("program", "user", "nobody", file)
WScript.Echo "runs so far: " & runs & ", the last one by " & last

ini.WriteIni "program", "runs", CStr(runs + 1), file
ini.WriteIni "program", "user", WScript.Arguments(1), file

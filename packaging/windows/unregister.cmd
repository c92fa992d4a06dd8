@echo off
rem Takes back what register.cmd recorded for the whole machine; needs an administrator's rights.
rem What stands behind the name goes to regsvr32, "/s" for example: no message.
setlocal
set "server=%SystemRoot%\System32\regsvr32.exe"
if exist "%SystemRoot%\SysWOW64\regsvr32.exe" set "server=%SystemRoot%\SysWOW64\regsvr32.exe"
"%server%" /u %* "%~dp0KWUTILS.DLL"

// Reads a setting from an INI file, with a default, writes it and removes it again.
//
//   cscript //nologo settings.js FILE
var file = WScript.Arguments(0);
var ini = new ActiveXObject("kwUtils.clsIni");

WScript.Echo("at first: " + ini.GetIni("plant", "unit", "kW", file));
ini.WriteIni("plant", "unit", "hp", file);
WScript.Echo("written: " + ini.GetIni("plant", "unit", "kW", file));
ini.RemoveIniEntry("plant", "unit", file);
WScript.Echo("removed: " + ini.GetIni("plant", "unit", "kW", file));

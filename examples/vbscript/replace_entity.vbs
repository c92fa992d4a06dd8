' Gives an entity a new name: reads it, changes one item, writes it back.
'
'   cscript //nologo replace_entity.vbs FILE TYPE IDENTIFIER NAME
Option Explicit
Dim store, parser, file, kind, id, entity, values

file = WScript.Arguments(0)
kind = WScript.Arguments(1)
id = WScript.Arguments(2)

Set store = CreateObject("kwUtils.clsFileReadWrite")
Set parser = CreateObject("kwUtils.clsParse")

entity = store.GetEntity(file, kind, id)
If entity = "" Then
  WScript.Echo "There is no " & kind & " " & id & " in " & file
  WScript.Quit 1
End If
WScript.Echo "was: " & parser.ParseValuewithTokenandCheck(entity, "nm", values, 1)

entity = parser.ReplaceEntity(entity, "nm", "'" & WScript.Arguments(3) & "'")
store.WriteEntity file, kind, id, entity

entity = store.GetEntity(file, kind, id)
WScript.Echo "is: " & parser.ParseValuewithTokenandCheck(entity, "nm", values, 1)

' Lists the entities of a type: identifier, name and the value of one more item.
'
'   cscript //nologo list_entities.vbs FILE TYPE ITEM
Option Explicit
Dim store, file, kind, item, ids, names, values, i

file = WScript.Arguments(0)
kind = UCase(WScript.Arguments(1))
item = WScript.Arguments(2)

' The three variables come back as collections, each item stored under the entity's identifier.
Set store = CreateObject("kwUtils.clsFileReadWrite")
store.List2EntitieswithSearch file, kind, "", "", ids, "", names, True, False, item, values

For i = 1 To ids.Count
  WScript.Echo ids(i) & ": " & names(i) & ", " & item & " " & values(ids(i))
Next
WScript.Echo ids.Count & " listed"

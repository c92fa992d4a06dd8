' Lists the entities of a type by the value of a numeric item, the greatest first; then their names
' in alphabetical order.
'
'   cscript //nologo sort_entities.vbs FILE TYPE ITEM
Option Explicit
Dim store, sorter, file, kind, ids, names, texts, numbers, sorted, name, order, i

file = WScript.Arguments(0)
kind = UCase(WScript.Arguments(1))
Set store = CreateObject("kwUtils.clsFileReadWrite")
Set sorter = CreateObject("kwUtils.clsQSort")
store.List2EntitieswithSearch file, kind, "", "", ids, "", names, True, False, _
  WScript.Arguments(2), texts

ReDim numbers(ids.Count - 1)
ReDim sorted(ids.Count - 1)
For i = 1 To ids.Count
  numbers(i - 1) = CDbl(texts(i))
  sorted(i - 1) = names(i)
Next

' The numbers stay where they are; the order says which of them comes first, second and so on.
sorter.dQSortIndex numbers, order, True
For i = 0 To UBound(order)
  WScript.Echo numbers(order(i)) & vbTab & names(order(i) + 1)
Next

sorter.sQSort sorted
For Each name In sorted
  WScript.Echo name
Next

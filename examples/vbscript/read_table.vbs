' Reads the table of an entity and adds up its second column.
'
'   cscript //nologo read_table.vbs FILE TYPE IDENTIFIER
Option Explicit
Dim store, parser, file, rows, row, count, i, hour, flow, total

file = WScript.Arguments(0)
Set store = CreateObject("kwUtils.clsFileReadWrite")
Set parser = CreateObject("kwUtils.clsParse")

count = store.GetTableEntry(file, "", WScript.Arguments(1), WScript.Arguments(2), rows)
total = 0
For i = 1 To count
  row = rows(i)
  ' Each call takes one word off the row.
  hour = parser.ParseList(row)
  flow = parser.ParseList(row)
  WScript.Echo hour & " h: " & flow
  total = total + CDbl(flow)
Next
WScript.Echo count & " rows, sum " & total

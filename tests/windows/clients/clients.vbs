' A VBScript client: every kind of argument that a script hands over, and what comes back in it.
Option Explicit
Dim failures, checks
failures = 0
checks = 0

Sub Expect(what, got, wanted)
  checks = checks + 1
  If VarType(got) = VarType(wanted) Then
    If got = wanted Then Exit Sub
  End If
  failures = failures + 1
  WScript.Echo "FAILED " & what & ": expected " & wanted & " (" & VarType(wanted) & "), got " & _
    got & " (" & VarType(got) & ")"
End Sub

Dim parser, text, fields, count, items, item, joined, sorter, numbers, order, store, names, ini

Set parser = CreateObject("kwUtils.clsParse")

' A text variable is consumed.
text = "pump 12 'two words' rest"
Expect "first item", parser.ParseList(text), "pump"
Expect "rest of the list", text, "12 'two words' rest"
Expect "item with a separator", parser.ParseList(text, " "), "12"
Expect "literal", parser.ParseList("a b"), "a"
Expect "by name in another case", parser.PARSELIST(text), "two words"

' A variable that holds nothing yet becomes an array.
fields = Empty
ReDim fields(0)
count = parser.ParseFields("a,b,c", ",", fields)
Expect "number of fields", count, CLng(3)
Expect "bounds of the fields", UBound(fields), CLng(3)
Expect "second field", fields(2), "b"

' A number variable is counted on, in its own kind; so is one of another kind of number.
Dim position
position = CLng(2)
fields = Array("", "", "", "")
Expect "tokens read", parser.ParseTokenArray("x y", position, fields, count), CLng(0)
Expect "first token", fields(1), "x"
Expect "number set", count, CLng(2)
count = CInt(0)
parser.ParseTokenArray "x y", position, fields, count
Expect "number set in its kind", count, CInt(2)
count = Empty
parser.ParseTokenArray "x y", position, fields, count
Expect "number set anew", count, CLng(2)

' An array of fixed bounds is filled where it is.
Dim fixed(3)
parser.ParseTokenArray "x y", position, fixed, count
Expect "fixed array filled", fixed(1) & fixed(2), "xy"
Expect "bounds of a fixed array", UBound(fixed), CLng(3)

' A collection variable is replaced by a collection of the library's own.
Set items = Nothing
text = "LIST one two three list"
parser.ParseTokenListIntoColl text, "LIST", items
joined = ""
For Each item In items
  joined = joined & item & "."
Next
Expect "items walked", joined, "one.two.three."
Expect "items counted", items.Count, CLng(3)
Expect "item by position", items.Item(2), "two"
Expect "default member", items(3), "three"
items.Add "four", "key"
Expect "item by key", items("KEY"), "four"
items.Remove 1
Expect "items left", items.Count(), CLng(3)

' A script's arrays of variants serve as arrays of numbers and texts, and come back changed.
Set sorter = CreateObject("kwUtils.clsQSort")
numbers = Array(3, 1, 2)
Expect "sorting succeeds", sorter.lQSort(numbers), True
Expect "numbers sorted", numbers(0) & numbers(1) & numbers(2), "123"
numbers = Array(2.5, 0.5, 1.5)
order = Array(0, 1, 2)
sorter.dQSortIndex numbers, order, True
Expect "order of the numbers", order(0) & order(1) & order(2), "021"
Expect "numbers left as they were", numbers(0), 2.5
names = Array("pear", "Apple", "fig")
sorter.sQSort names
Expect "names sorted", names(0) & names(1) & names(2), "Applefigpear"

' Elements of arrays and flags are variables like any other.
Dim pair(1)
pair(0) = "left right"
Expect "item of an element", parser.ParseList(pair(0)), "left"
Expect "element consumed", pair(0), "right"

' Errors carry number, source and description.
On Error Resume Next
items.Item "nowhere"
Expect "number of an error", Err.Number, CLng(5)
Err.Clear
Set store = CreateObject("kwUtils.clsFileReadWrite")
text = store.GetEntity("no such folder\a.ent", "NODE", "1")
Expect "file error", Err.Number, CLng(76)
Expect "source of an error", Err.Source, "kwUtils.clsFileReadWrite"
Expect "description of an error", InStr(Err.Description, "no such folder") > 0, True
Err.Clear
parser.NoSuchMember
Expect "unknown member", Err.Number, CLng(438)
Err.Clear
parser.ParseList
Expect "too few arguments", Err.Number <> 0, True
Err.Clear
CreateObject("kwUtils.clsNothing")
Expect "unknown class", Err.Number, CLng(429)
Err.Clear
On Error Goto 0

Set ini = CreateObject("kwUtils.clsIni")
Expect "INI value written", ini.WriteIni("s", "k", "v", "clients_test.ini"), CInt(1)
Expect "INI value read", ini.GetIni("s", "k", "d", "clients_test.ini"), "v"
CreateObject("Scripting.FileSystemObject").DeleteFile "clients_test.ini"

Set parser = Nothing
If failures > 0 Then
  WScript.Echo failures & " of " & checks & " checks failed"
  WScript.Quit 1
End If
WScript.Echo checks & " checks passed"

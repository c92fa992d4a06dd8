// A JScript client. This language passes nothing by reference, so results count alone.
var failures = 0;
var checks = 0;

function expect(what, got, wanted) {
  ++checks;
  if (got === wanted) return;
  ++failures;
  WScript.Echo("FAILED " + what + ": expected " + wanted + ", got " + got);
}

function errorOf(call) {
  try {
    call();
  } catch (error) {
    return error;
  }
  return null;
}

var parser = new ActiveXObject("kwUtils.clsParse");
expect("first item", parser.ParseList("pump 12"), "pump");
expect("item with a separator", parser.ParseList("a;b", ";"), "a");
expect("optional left out", parser.ParseList("a b", undefined), "a");

var texts = new ActiveXObject("kwUtils.clsStringUtil");
expect("inverted text", texts.InvertString("abc"), "cba");

var entry = new ActiveXObject("kwUtils.clsDataEdtUtils");
expect("numbers from a script", entry.ValiText(65, "ABC", true), 65);

var store = new ActiveXObject("kwUtils.clsFileReadWrite");
var error = errorOf(function () { store.GetEntity("no such folder\\a.ent", "NODE", "1"); });
expect("number of an error", error.number & 0xFFFF, 76);
expect("description of an error", error.description.indexOf("no such folder") >= 0, true);

error = errorOf(function () { parser.NoSuchMember(1); });
expect("unknown member", error !== null, true);
error = errorOf(function () { new ActiveXObject("kwUtils.clsNothing"); });
expect("unknown class", error !== null, true);

if (failures > 0) {
  WScript.Echo(failures + " of " + checks + " checks failed");
  WScript.Quit(1);
}
WScript.Echo(checks + " checks passed");

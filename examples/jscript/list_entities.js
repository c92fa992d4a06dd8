// Lists the entities of a type by identifier and name.
//
//   cscript //nologo list_entities.js FILE TYPE
//
// This language passes nothing by reference, so no list comes back in a variable. The library fills
// any object that answers to Add, Item, Remove and Count, and here it is one of the script's own.
function List() {
  this.values = [];
}
List.prototype.Add = function (value, key) { this.values.push(value); };
List.prototype.Item = function (place) { return this.values[place - 1]; };
List.prototype.Remove = function (place) { this.values.splice(place - 1, 1); };
List.prototype.Count = function () { return this.values.length; };

var store = new ActiveXObject("kwUtils.clsFileReadWrite");
var ids = new List(), names = new List();
store.List2EntitieswithSearch(WScript.Arguments(0), WScript.Arguments(1).toUpperCase(), "", "",
                              ids, "", names, false, false);
for (var i = 1; i <= ids.Count(); ++i) WScript.Echo(ids.Item(i) + ": " + names.Item(i));
WScript.Echo(ids.Count() + " listed");

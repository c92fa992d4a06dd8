// Adds an entity under a new number and replaces one of its values.
//
//   cscript //nologo add_entity.js FILE TYPE NAME
var file = WScript.Arguments(0), type = WScript.Arguments(1);
var store = new ActiveXObject("kwUtils.clsFileReadWrite");
var parser = new ActiveXObject("kwUtils.clsParse");

var id = store.GetNewID(file, type);
store.WriteEntity(file, type, id, "id '" + id + "' nm '" + WScript.Arguments(2) + "' state new");
WScript.Echo(store.GetEntity(file, type, id));

// An entity of the same identifier is replaced.
store.WriteEntity(file, type, id,
                  parser.ReplaceEntity(store.GetEntity(file, type, id), "state", "ready"));
WScript.Echo(store.GetEntity(file, type, id));

#include <kwutils/kwutils.h>

#include <iostream>

int main() {
  kw::clsFileReadWrite store;
  kw::String file = u"plant.ent";
  store.WriteEntity(file, u"pump", u"P1", u"id 'P1' nm 'Main pump' kw 5.5");
  kw::String entity = store.GetEntity(file, u"pump", u"p1");
  kw::Array<kw::String> values;
  std::cout << kw::clsParse().ParseValuewithTokenandCheck(entity, u"nm", values, 0).utf8() << "\n";
}

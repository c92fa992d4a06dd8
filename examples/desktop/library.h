// The library's objects that the form works with.
#pragma once

#include <kwutils_classes.h>

#include "client/classes.h"

struct Library {
  explicit Library(const Classes& classes)
      : entry(classes.create<_clsDataEdtUtils, clsDataEdtUtils>()),
        store(classes.create<_clsFileReadWrite, clsFileReadWrite>()),
        parser(classes.create<_clsParse, clsParse>()),
        ini(classes.create<_clsIni, clsIni>()) {}

  Reference<_clsDataEdtUtils> entry;
  Reference<_clsFileReadWrite> store;
  Reference<_clsParse> parser;
  Reference<_clsIni> ini;
};

// kwutils-idl: writes kwutils.idl to its standard output.
#include <cstdio>

#include "server/idl_writer.h"

int main() { return std::fputs(kw::server::interface_definitions().c_str(), stdout) < 0; }

#include <kwutils/kwutils.h>

#include <iostream>

// What the library has to tell the user is shown by the program.
kw::MessageAnswer KW_STDCALL show(void*, kw::BSTR text, kw::MessageButtons) {
  std::cout << "shown: " << kw::String(std::u16string_view(text)).utf8() << "\n";
  return kw::MessageAnswer::abort;
}

int main() {
  kw::HostFunctions host;
  host.message_box = show;
  kw::set_host(host);  // the library in this program; kw::set_host(factory, host) for a loaded one
  kw::clsFileUtil().MakeAbsolute(u"pumps:north");
}

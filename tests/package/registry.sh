# shellcheck shell=bash disable=SC2154  # the session sets what it uses
# For scripts to source: what a Wine registry says of the library.

# The library's keys and values below a key, without its folder, one a line.
library_entries() { # key, view (/reg:32 or /reg:64), file to write
  rm -f entries.reg
  : >"$3"
  # A key that is not there cannot be exported.
  "$wine" "$bitness" reg.exe export "$1" entries.reg /y "$2" >/dev/null 2>&1 || return 0
  iconv -f UTF-16 -t UTF-8 entries.reg | tr -d '\r' |
    awk '/^\[/ { own = tolower($0) ~ /kwutils|141aa2[de]|04c4ec54|d0a0f987|e8c76283|1bea90c4|dec8c1fb/
                 key = $0; next }
         own && NF { print tolower(key) " " $0 }' | sort >"$3"
}

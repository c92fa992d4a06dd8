# KW_VERSION_TEXT, the version as users read it: 1.2.12 is written 1.02.0012.
string(LENGTH ${PROJECT_VERSION_MINOR} minor_digits)
string(LENGTH ${PROJECT_VERSION_PATCH} patch_digits)
math(EXPR minor_zeros "2 - ${minor_digits}")
math(EXPR patch_zeros "4 - ${patch_digits}")
string(REPEAT 0 ${minor_zeros} minor_zeros)
string(REPEAT 0 ${patch_zeros} patch_zeros)
set(KW_VERSION_TEXT
  ${PROJECT_VERSION_MAJOR}.${minor_zeros}${PROJECT_VERSION_MINOR}.${patch_zeros}${PROJECT_VERSION_PATCH})

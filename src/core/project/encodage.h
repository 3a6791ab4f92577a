// Text of the power project on disk is Windows-1252; in memory it is UTF-8.
#pragma once
#include <optional>
#include <string>

namespace kestrel {

// UTF-8 to Windows-1252; empty optional when a character has no place there.
std::optional<std::string> vers_cp1252(const std::string& utf8);
// Windows-1252 to UTF-8. The five bytes the code page leaves undefined come
// out as "?": only the comments and labels could hold them, and they are not read.
std::string depuis_cp1252(const std::string& cp1252);

}  // namespace kestrel

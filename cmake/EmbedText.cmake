# Writes OUTPUT, a source file that defines SYMBOL as the text of INPUT (see Embed.cmake).
file(READ "${INPUT}" text)
if(STRIP)
  string(REGEX REPLACE "\n[ \t]+" "\n" text "\n${text}")
  string(REGEX REPLACE "\n%[^%\n][^\n]*" "" text "${text}")
  string(REGEX REPLACE "\n(%\n)+" "\n" text "${text}")
  string(REGEX REPLACE "\n\n+" "\n" text "${text}")
  string(REGEX REPLACE "^\n" "" text "${text}")
endif()
file(WRITE "${OUTPUT}" "#include <string_view>
namespace zarvo {
extern const std::string_view ${SYMBOL};
constexpr char k${SYMBOL}Text[] = R\"ZRVTEXT(${text})ZRVTEXT\";
const std::string_view ${SYMBOL}(k${SYMBOL}Text, sizeof k${SYMBOL}Text - 1);
}  // namespace zarvo
")

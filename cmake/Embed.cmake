# Turns a text file into a C++ source that returns it. Called at build time with INPUT, OUTPUT and SYMBOL.
file(READ "${INPUT}" bytes HEX)
string(REGEX REPLACE "(..)" "0x\\1," bytes "${bytes}")
get_filename_component(name "${INPUT}" NAME)
file(WRITE "${OUTPUT}" "// Made from ${name}.\nnamespace app {\nconst char* ${SYMBOL}();\nconst char* ${SYMBOL}()\n{\n"
  "    static const unsigned char text[] = {${bytes}0};\n    return reinterpret_cast<const char*>(text);\n}\n}  // namespace app\n")

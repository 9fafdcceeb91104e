# cmake -D FILE=... -D HEADER=... -D NAME=... -D SOURCE=... -P Embed.cmake: writes SOURCE, in which the function NAME of
# HEADER gives the bytes of FILE, which is not empty.
file(READ ${FILE} bytes HEX)
string(REGEX REPLACE "(..)" "'\\\\x\\1'," bytes "${bytes}")
file(WRITE ${SOURCE} "#include \"${HEADER}\"\n\nstd::string_view ${NAME}() {\n"
                     "  static constexpr char kBytes[] = {${bytes}};\n  return {kBytes, sizeof(kBytes)};\n}\n")

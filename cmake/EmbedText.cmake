# Writes OUTPUT, a C++ source with a function FUNCTION that returns the bytes of INPUT, for tables
# that are compiled in. The text is cut into pieces, since compilers limit the length of a literal.
file(READ ${INPUT} text)
string(LENGTH "${text}" length)
set(source "#include \"${HEADER}\"\n\nstd::string_view ${FUNCTION}()\n{\n    return std::string_view(\n")
set(at 0)
while(at LESS length)
    string(SUBSTRING "${text}" ${at} 2000 piece)
    string(APPEND source "        R\"text(${piece})text\"\n")
    math(EXPR at "${at} + 2000")
endwhile()
string(APPEND source "    );\n}\n")
file(WRITE ${OUTPUT} "${source}")

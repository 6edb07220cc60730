# cmake -DFOLDER=... -DOUTPUT=... "-DFILES=a;b" -P embed_files.cmake: writes a C++ source with the files of FOLDER as
# rows of a table, path and text. Neither holds )embedded".
set(rows "")
foreach(file IN LISTS FILES)
    file(READ ${FOLDER}/${file} text)
    string(APPEND rows "    {\"${file}\", R\"embedded(${text})embedded\"},\n")
endforeach()
file(WRITE ${OUTPUT} "#include \"schemas/schema_files.h\"

namespace schemas
{

const std::vector<SchemaFile>& schemaFiles()
{
    static const std::vector<SchemaFile> files{
${rows}    };
    return files;
}

} // namespace schemas
")

# Makes one script of a folder of zlib's port that its modules can be found in.
#   cmake -DFOLDER=... -DOUTPUT=... -P bundle_zlib.cmake
set(bundle "var kovZlib = (() => {\nconst modules = {};\n")
foreach(name constants messages zstream adler32 crc32 trees inffast inftrees inflate deflate)
    file(READ ${FOLDER}/${name}.js text)
    string(APPEND bundle "modules['./${name}'] = (() => { const module = {exports: {}};\n"
                         "const require = name => modules[name];\n${text}\n"
                         "return module.exports; })();\n")
endforeach()
string(APPEND bundle "const port = {Stream: modules['./zstream'], inflate: modules['./inflate'], "
                     "deflate: modules['./deflate'], checksum: modules['./crc32']};\n")
file(READ ${CMAKE_CURRENT_LIST_DIR}/script/zlib.js text)
string(APPEND bundle "${text}\nreturn zlib;\n})();\n")
file(WRITE ${OUTPUT} "${bundle}")

// zlib's functions by their names in C. They are in script/zlib.js.

mergeInto(LibraryManager.library, {
  deflateInit_: function(stream, level) { return kovZlib.beginDeflating(stream, level); },
  deflate: function(stream, flush) { return kovZlib.deflate(HEAPU8, stream, flush); },
  deflateEnd: function(stream) { return kovZlib.endDeflating(stream); },
  deflateBound: function(stream, size) { return kovZlib.mostDeflated(size); },
  inflateInit_: function(stream) { return kovZlib.beginInflating(stream); },
  inflate: function(stream, flush) { return kovZlib.inflate(HEAPU8, stream, flush); },
  inflateEnd: function(stream) { return kovZlib.endInflating(stream); },
  crc32: function(before, bytes, size) { return kovZlib.checksum(HEAPU8, before, bytes, size); },
});

// zlib's functions for the program, over a port of them to JavaScript (`port`).

// The fields of a z_stream, as indices of its words.
const field = { nextIn: 0, availIn: 1, nextOut: 3, availOut: 4, count: 5 };

const streams = new Map(); // by the address of their z_stream

function begin(address, start) {
  const stream = new port.Stream();
  streams.set(address, stream);
  return start(stream);
}

function turn(memory, address, operation, flush) {
  const stream = streams.get(address);
  const fields = new Uint32Array(memory.buffer, address, field.count);
  const part = (start, size) => memory.subarray(fields[start], fields[start] + fields[size]);
  stream.input = part(field.nextIn, field.availIn);
  stream.output = part(field.nextOut, field.availOut);
  stream.next_in = stream.next_out = 0;
  stream.avail_in = fields[field.availIn];
  stream.avail_out = fields[field.availOut];
  const result = operation(stream, flush);
  fields[field.nextIn] += stream.next_in;
  fields[field.nextOut] += stream.next_out;
  fields[field.availIn] = stream.avail_in;
  fields[field.availOut] = stream.avail_out;
  return result;
}

function end(address, finish) {
  const result = finish(streams.get(address));
  streams.delete(address);
  return result;
}

const zlib = {
  beginDeflating: (address, level) =>
    begin(address, stream => port.deflate.deflateInit(stream, level)),
  deflate: (memory, address, flush) => turn(memory, address, port.deflate.deflate, flush),
  endDeflating: address => end(address, port.deflate.deflateEnd),
  mostDeflated: size => size + (size >> 3) + 64, // of stored blocks, and more

  beginInflating: address => begin(address, port.inflate.inflateInit),
  inflate: (memory, address, flush) => turn(memory, address, port.inflate.inflate, flush),
  endInflating: address => end(address, port.inflate.inflateEnd),

  checksum: (memory, before, bytes, size) =>
    port.checksum(before, memory.subarray(bytes, bytes + size), size, 0),
};

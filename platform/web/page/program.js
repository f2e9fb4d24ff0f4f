// The programs' code, compiled once for however many starts.

const codes = new Map(); // promises, by the file's name

export function codeOf(name) {
  if (!codes.has(name)) {
    const code = fetch(new URL(name, import.meta.url))
      .then(answer => (answer.ok ? answer.arrayBuffer() : Promise.reject(new Error(name))))
      .then(bytes => WebAssembly.compile(bytes));
    code.catch(() => codes.delete(name)); // it may come another time
    codes.set(name, code);
  }
  return codes.get(name);
}

/** Options of Emscripten's: the program starts from this code. */
export function startFrom(code) {
  return {
    instantiateWasm(imports, receive) {
      WebAssembly.instantiate(code, imports).then(receive);
      return {};
    },
  };
}

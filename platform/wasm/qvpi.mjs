// qvpIP for JavaScript, in browsers, workers and Node.js: `const q = await load()`.
//
// Functions have their names of the C headers and take numbers. A pointer is a place in memory, as an index of
// q.HEAPU8; so is a structure, which is passed by the address of its fields. malloc and free are there too.

const kViews = {
  HEAP8: Int8Array, HEAPU8: Uint8Array, HEAP16: Int16Array, HEAPU16: Uint16Array, HEAP32: Int32Array,
  HEAPU32: Uint32Array, HEAPF32: Float32Array, HEAPF64: Float64Array,
};

async function compiled(source) {
  if (typeof process === 'object' && process.versions?.node && source.protocol === 'file:') {
    const {readFile} = await import('node:fs/promises');
    return WebAssembly.compile(await readFile(source));
  }
  return WebAssembly.compileStreaming(fetch(source));
}

// `source` tells where qvpi.wasm is, if it is not beside this file: a URL, or the compiled WebAssembly.Module itself.
export async function load(source = new URL('qvpi.wasm', import.meta.url)) {
  const module = source instanceof WebAssembly.Module ? source : await compiled(new URL(source, import.meta.url));
  const ignored = () => {};
  const {exports} = await WebAssembly.instantiate(module, {env: {emscripten_notify_memory_growth: ignored}});
  exports._initialize?.();
  const q = {
    ...exports,
    // The text at a char pointer.
    text(address) {
      const bytes = q.HEAPU8;
      return new TextDecoder().decode(bytes.subarray(address, bytes.indexOf(0, address)));
    },
  };
  // Views become empty when memory grows, which any call that allocates may do: so each use makes its own.
  for (const [name, View] of Object.entries(kViews)) {
    Object.defineProperty(q, name, {get: () => new View(exports.memory.buffer)});
  }
  return q;
}

// A sequence of calls that is made and written down as C at once, so that the text on the page is what ran.
//
// Operations give a Program numbers, names of constants from the headers, null, and values that its methods return.
// Such a value has its text in C and what stands for it in a call to WebAssembly: structures and images that are given
// by address and step make one or two arguments of it.

const kColumns = 96;
const kMemoryOf = {
  'int': 'HEAP32', 'Qvp8u': 'HEAPU8', 'Qvp16s': 'HEAP16', 'Qvp32f': 'HEAPF32', 'double': 'HEAPF64',
};

export class Program {
  #lines = [];
  #endings = [];
  #blocks = [];
  #calls = [];

  // src and dst are images of three channels, as newImage() makes them; constants has values by their names in C.
  constructor(q, constants, src, dst) {
    Object.assign(this, {q, constants});
    this.src = {text: 'src, srcStep', args: [src.address, src.step]};
    this.dst = {text: 'dst, dstStep', args: [dst.address, dst.step]};
    this.width = src.width;
    this.height = src.height;
    this.size = this.newSize('size', src.width, src.height);
    const isOfOneSize = src.width === dst.width && src.height === dst.height;
    this.dstSize = isOfOneSize ? this.size : this.newSize('dstSize', dst.width, dst.height);
  }

  // The source as a function takes it that reads one of its channels.
  srcChannel(channel) {
    const [address, step] = this.src.args;
    return {text: `src + ${channel}, srcStep`, args: [address + channel, step]};
  }

  newSize(name, width, height) { return this.#structure('QvpiSize', name, width, height); }
  newPoint(name, x, y) { return this.#structure('QvpiPoint', name, x, y); }

  #structure(type, name, first, second) {
    this.#lines.push(`const ${type} ${name} = {${first}, ${second}};`);
    return {text: name, args: [this.#stored('HEAP32', [first, second])]};
  }

  // An array of numbers, or of rows of them.
  newArray(type, name, values) {
    const rows = Array.isArray(values[0]);
    const sizes = rows ? `[${values.length}][${values[0].length}]` : `[${values.length}]`;
    const written = rows ? values.map((row) => `{${row.join(', ')}}`) : values;
    this.#lines.push(`const ${type} ${name}${sizes} = {${written.join(', ')}};`);
    return {text: name, args: [this.#stored(kMemoryOf[type], values.flat())]};
  }

  // An array of the addresses of arrays.
  newPointers(type, name, arrays) {
    this.#lines.push(`const ${type}* const ${name}[${arrays.length}] = {${arrays.map((a) => a.text).join(', ')}};`);
    return {text: name, args: [this.#stored('HEAP32', arrays.map((a) => a.args[0]))]};
  }

  // A variable that a call is to write: it is passed by its address, and its `value` later on.
  newResult(type, name) {
    this.#lines.push(`${type} ${name};`);
    const address = this.#stored(kMemoryOf[type], [0]);
    const read = () => { const memory = this.q[kMemoryOf[type]]; return memory[address / memory.BYTES_PER_ELEMENT]; };
    const value = {text: name, get args() { return [read()]; }};
    return {text: `&${name}`, args: [address], value};
  }

  // An array that a call is to write, whose sizes are as in '[2][3]'.
  newResults(type, name, sizes) {
    this.#lines.push(`${type} ${name}${sizes};`);
    const count = sizes.match(/\d+/g).reduce((product, n) => product * n, 1);
    return {text: name, args: [this.#stored(kMemoryOf[type], Array(count).fill(0))]};
  }

  // Memory for a record or a work buffer, whose size is a result of a call.
  newBlock(type, name, size) {
    const address = this.q.qvpMalloc(size.value.args[0]);
    this.#lines.push(`${type}* ${name} = qvpMalloc(${size.value.text});`);
    this.#endings.unshift(`qvpFree(${name});`);
    this.#blocks.push(() => this.q.qvpFree(address));
    return {text: name, args: [address]};
  }

  // An image from a function of the library that allocates one, as qvpiMalloc_8u_C1.
  newImage(allocate, type, name, width, height) {
    const step = this.#stored('HEAP32', [0]), address = this.q[allocate](width, height, step);
    this.#lines.push(`int ${name}Step;`, `${type}* ${name} = ${allocate}(${width}, ${height}, &${name}Step);`);
    this.#endings.unshift(`qvpiFree(${name});`);
    this.#blocks.push(() => this.q.qvpiFree(address));
    return {text: `${name}, ${name}Step`, args: [address, this.q.HEAP32[step / 4]]};
  }

  call(name, ...values) {
    const made = values.map((value) => this.#argument(value));
    const args = made.flatMap((value) => value.args);
    this.#lines.push(broken(`${name}(${made.map((value) => value.text).join(', ')});`));
    const status = this.q[name](...args);
    if (status < 0) throw new Error(`${name}: ${this.q.text(this.q.qvpGetStatusString(status))}`);
    this.#calls.push(() => this.q[name](...args));
  }

  // The calls once more, which gives the same results.
  repeat() { for (const call of this.#calls) call(); }

  free() { for (const free of this.#blocks) free(); }

  // A function in C with these calls.
  text(name) {
    const body = [...this.#lines, ...this.#endings].flatMap((line) => line.split('\n')).map((line) => `    ${line}`);
    return ['#include <qvpcore.h>', '#include <qvpi.h>', '', '// Images of 8 bits and three channels.',
            `void ${name}(const Qvp8u* src, int srcStep, Qvp8u* dst, int dstStep) {`, ...body, '}', ''].join('\n');
  }

  #argument(value) {
    if (value === null) return {text: 'NULL', args: [0]};
    if (typeof value === 'number') return {text: String(value), args: [value]};
    if (typeof value !== 'string') return value;
    if (!(value in this.constants)) throw new Error(`${value} is no constant of the headers`);
    return {text: value, args: [this.constants[value]]};
  }

  #stored(view, numbers) {
    const bytes = this.q[view].BYTES_PER_ELEMENT, address = this.q.malloc(bytes * numbers.length);
    this.q[view].set(numbers, address / bytes);
    this.#blocks.push(() => this.q.free(address));
    return address;
  }
}

// A call of more than a line goes on below its first argument.
function broken(text) {
  const indent = text.indexOf('(') + 1, lines = [''];
  for (const part of text.split(/(?<=, )/)) {
    if (lines.at(-1).length + part.trimEnd().length > kColumns) lines.push(' '.repeat(indent));
    lines[lines.length - 1] += part;
  }
  return lines.map((line) => line.trimEnd()).join('\n');
}

// An image of three channels, which qvpiFree() releases.
export function newImage(q, width, height) {
  const step = q.malloc(4), address = q.qvpiMalloc_8u_C3(width, height, step);
  const image = {address, step: q.HEAP32[step / 4], width, height};
  q.free(step);
  return image;
}

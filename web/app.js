// The page: what its controls do. It shows the picture `before`, what an operation makes of it, how long that took, and
// the calls in C.
import {load} from './qvpi.mjs';
import {kConstants} from './constants.js';
import {kGroups} from './operations.js';
import {draw, imageOf, show} from './picture.js';
import {newImage, Program} from './program.js';

const $ = (id) => document.getElementById(id);
const kOperations = Object.values(kGroups).flat();
// Milliseconds to repeat calls for, as clocks of browsers are coarse; and where the next frame of a camera waits.
const kLeastTime = 20, kLeastTimeOfFrame = 2;
const state = {operation: kOperations[0], values: {}, photo: null, frame: 0, camera: null};
let q;

function element(tag, properties = {}, ...children) {
  const made = Object.assign(document.createElement(tag), properties);
  made.append(...children);
  return made;
}

function tell(message) {
  $('message').textContent = message;
  $('message').hidden = !message;
}

// Milliseconds that the calls of a program take, or that of the first run, with allocation, where it was long.
function timeOf(program, first) {
  const least = state.camera ? kLeastTimeOfFrame : kLeastTime;
  if (first >= least) return first;
  const begin = performance.now();
  for (let runs = 1; ; ++runs) {
    program.repeat();
    const taken = performance.now() - begin;
    if (taken >= least) return taken / runs;
  }
}

function apply() {
  const {operation, photo, values} = state, size = operation.size?.(photo, values) ?? [photo.width, photo.height];
  const dst = newImage(q, ...size), program = new Program(q, kConstants, photo, dst);
  try {
    const begin = performance.now();
    operation.run(program, values);
    const first = performance.now() - begin;
    show(q, dst, $('after'));
    $('code').textContent = program.text(operation.run.name);
    showTime(timeOf(program, first), photo, dst);
    tell('');
  } catch (error) {
    tell(`That did not work. ${error.message}`);
  } finally {
    program.free();
    q.qvpiFree(dst.address);
  }
}

function showTime(milliseconds, from, to) {
  const pixels = from.width * from.height;
  const time = milliseconds < 100 ? milliseconds.toPrecision(3) : milliseconds.toFixed();
  const sizes = from.width === to.width && from.height === to.height ? '' : ` to ${to.width} x ${to.height}`;
  $('time').textContent = `${time} ms for ${from.width} x ${from.height}${sizes} pixels: ` +
    `${Math.round(pixels / milliseconds / 1000)} million pixels a second, on one core, in WebAssembly`;
}

// Sliders move faster than pictures can be shown: each frame applies the last of their values.
function applySoon() {
  if (!state.frame && state.photo) state.frame = requestAnimationFrame(() => { state.frame = 0; apply(); });
}

function take(source) {
  draw(source, $('before'));
  if (state.photo) q.qvpiFree(state.photo.address);
  state.photo = imageOf(q, $('before'));
}

async function open(file) {
  try {
    const bitmap = await createImageBitmap(file);
    stopCamera();
    take(bitmap);
    applySoon();
  } catch {
    tell(`${file.name || 'That'} is no picture that this browser can read.`);
  }
}

function stopCamera() {
  state.camera?.getTracks().forEach((track) => track.stop());
  state.camera = null;
  $('camera').ariaPressed = 'false';
}

async function startCamera() {
  $('camera').disabled = true;
  try {
    state.camera = await navigator.mediaDevices.getUserMedia({video: {facingMode: 'environment'}});
    $('video').srcObject = state.camera;
    await $('video').play();
    $('camera').ariaPressed = 'true';
    requestAnimationFrame(nextFrame);
  } catch (error) {
    stopCamera();
    tell(`No camera can be used here: ${error.message}`);
  } finally {
    $('camera').disabled = false;
  }
}

function nextFrame() {
  if (!state.camera) return;
  take($('video'));
  apply();
  requestAnimationFrame(nextFrame);
}

function changed(name, value, shown) {
  state.values[name] = value;
  if (shown) shown.value = value;
  applySoon();
}

function control({name, title, options, value, ...range}) {
  state.values[name] = value;
  if (options) {
    const entries = Object.entries(options).map(([key, text]) => element('option', {value: key}, text));
    const select = element('select', {name, oninput: () => changed(name, select.value)}, ...entries);
    return element('label', {}, title, select);
  }
  const shown = element('output', {value});
  const input = element('input', {type: 'range', name, ...range, value, // `value` last, as it is held to the range
                                  oninput: () => changed(name, input.valueAsNumber, shown)});
  return element('label', {}, title, input, shown);
}

function choose(operation) {
  Object.assign(state, {operation, values: {}});
  $('title').textContent = operation.title;
  $('about').textContent = operation.about;
  $('parameters').replaceChildren(...operation.parameters.map(control));
  applySoon();
}

function listOperations() {
  for (const [group, operations] of Object.entries(kGroups)) {
    const entries = operations.map((operation) => element('label', {}, element('input', {
      type: 'radio', name: 'operation', value: operation.run.name, checked: operation === state.operation,
      onchange: () => choose(operation)}), operation.title));
    $('operations').append(element('fieldset', {}, element('legend', {}, group), ...entries));
  }
}

// The code as text that is marked, where the clipboard is not to be had.
async function copyCode() {
  getSelection().selectAllChildren($('code'));
  await navigator.clipboard?.writeText($('code').textContent).catch(() => document.execCommand('copy'));
  $('copy').textContent = 'Copied';
  setTimeout(() => { $('copy').textContent = 'Copy'; }, 1500);
}

function saveResult() {
  $('after').toBlob((blob) => {
    const link = element('a', {href: URL.createObjectURL(blob), download: `${state.operation.run.name}.png`});
    link.click();
    setTimeout(() => URL.revokeObjectURL(link.href), 1000);
  });
}

function useDrops() {
  const mark = (isOver) => document.body.classList.toggle('dragging', isOver);
  addEventListener('dragover', (event) => { event.preventDefault(); mark(true); });
  addEventListener('dragleave', () => mark(false));
  addEventListener('drop', (event) => {
    event.preventDefault();
    mark(false);
    if (event.dataTransfer.files.length) open(event.dataTransfer.files[0]);
  });
}

function useControls() {
  $('file').onchange = () => { if ($('file').files.length) open($('file').files[0]); $('file').value = ''; };
  $('camera').onclick = () => state.camera ? stopCamera() : startCamera();
  $('example').onclick = () => { stopCamera(); take($('photograph')); applySoon(); };
  $('copy').onclick = copyCode;
  $('save').onclick = saveResult;
  $('parameters').onsubmit = (event) => event.preventDefault();
  useDrops();
}

async function start() {
  q = await load(document.querySelector('main').dataset.library);
  await $('photograph').decode();
  listOperations();
  useControls();
  take($('photograph'));
  choose(state.operation);
}

start().catch((error) => tell(`This browser cannot run the library: ${error.message}`));

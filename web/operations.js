// What the page offers. An operation has a name in C, a title, a sentence, parameters, the size of its result if that
// differs from the picture's, and the calls.

const slider = (name, title, min, max, step, value) => ({name, title, min, max, step, value});
const choice = (name, title, options) => ({name, title, options, value: Object.keys(options)[0]});
const maskSlider = (max, value) => slider('side', 'Mask', 3, max, 2, value);
const kMasks = {3: '3 x 3', 5: '5 x 5'};
const kOutside = ['qvpBorderReplicate', null];  // the kind of border, and the value that it does not need

// A work buffer for a mask over the picture.
function maskBuffer(p, getSize, side, channels) {
  const mask = p.newSize('mask', side, side), bytes = p.newResult('int', 'bytes');
  p.call(getSize, mask, p.size, 'qvp8u', ...channels, bytes);
  return [mask, p.newBlock('Qvp8u', 'buffer', bytes)];
}

// A record, and a block of memory beside it, of the sizes that one call tells.
function recordAndBlock(p, type, block, getSize, ...args) {
  const specBytes = p.newResult('int', 'specBytes'), bytes = p.newResult('int', `${block}Bytes`);
  p.call(getSize, ...args, specBytes, bytes);
  return [p.newBlock(type, 'spec', specBytes), p.newBlock('Qvp8u', block, bytes)];
}

// A record whose Init needs no memory of its own.
function recordAlone(p, type, getSize, ...args) {
  const specBytes = p.newResult('int', 'specBytes');
  p.call(getSize, ...args, specBytes, p.newResult('int', 'unused'));
  return p.newBlock(type, 'spec', specBytes);
}

// Green is nearest to what an eye takes for brightness.
function green(p) {
  const image = p.newImage('qvpiMalloc_8u_C1', 'Qvp8u', 'green', p.width, p.height);
  p.call('qvpiCopy_8u_C3C1R', p.srcChannel(1), image, p.size);
  return image;
}

const toColour = (p, grey) => p.call('qvpiDup_8u_C1C3R', grey, p.dst, p.size);
const allThree = (p, value) => p.newArray('Qvp8u', 'value', [value, value, value]);

function brightness(p, {change}) {
  const name = change < 0 ? 'qvpiSubC_8u_C3RSfs' : 'qvpiAddC_8u_C3RSfs';
  p.call(name, p.src, allThree(p, Math.abs(change)), p.dst, p.size, 0);
}

function toneCurve(p, {shadows, lights}) {
  const levels = p.newArray('Qvp32f', 'levels', [0, 64, 192, 256]);
  const values = p.newArray('Qvp32f', 'values', [0, 64 + shadows, 192 + lights, 255]);
  const counts = p.newArray('int', 'counts', [4]), bytes = p.newResult('int', 'bytes');
  const method = ['qvp8u', 'qvpLookupCubic'];
  p.call('qvpiLookupGetSize', ...method, counts, 1, bytes);
  const curve = p.newBlock('QvpiLookupSpec', 'curve', bytes);
  p.call('qvpiLookupInit', ...method, p.newPointers('Qvp32f', 'x', [levels]), p.newPointers('Qvp32f', 'y', [values]),
         counts, 1, curve);
  p.call('qvpiLookup_8u_C3R', p.src, p.dst, p.size, curve);
}

const invert = (p) => p.call('qvpiNot_8u_C3R', p.src, p.dst, p.size);

function posterise(p, {bits}) {
  p.call('qvpiAndC_8u_C3R', p.src, allThree(p, 256 - (256 >> bits)), p.dst, p.size);
}

function swapChannels(p, {order}) {
  const taken = p.newArray('int', 'order', [...order].map((colour) => 'RGB'.indexOf(colour)));
  p.call('qvpiSwapChannels_8u_C3R', p.src, p.dst, p.size, taken);
}

function blackAndWhite(p) {
  const grey = green(p), threshold = p.newResult('Qvp8u', 'threshold');
  p.call('qvpiComputeThreshold_Otsu_8u_C1R', grey, p.size, threshold);
  p.call('qvpiCompareC_8u_C1R', grey, threshold.value, grey, p.size, 'qvpCmpGreater');
  toColour(p, grey);
}

function localThreshold(p, {side, delta}) {
  const [mask, buffer] = maskBuffer(p, 'qvpiThresholdLocalBoxBorderGetBufferSize', side, []);
  const grey = green(p), marks = p.newImage('qvpiMalloc_8u_C1', 'Qvp8u', 'marks', p.width, p.height);
  p.call('qvpiThresholdLocalBoxBorder_8u_C1R', grey, marks, p.size, mask, delta, 255, 0, ...kOutside, buffer);
  toColour(p, marks);
}

function gauss(p, {sigma}) {
  const side = 2 * Math.ceil(3 * sigma) + 1, mask = p.newSize('mask', side, side);
  const [spec, buffer] = recordAndBlock(p, 'QvpiFilterGaussBorderSpec', 'buffer', 'qvpiFilterGaussBorderGetSize', mask,
                                        p.size, 'qvp8u', 3);
  p.call('qvpiFilterGaussBorderInit', mask, sigma, sigma, 'qvp8u', 3, spec);
  p.call('qvpiFilterGaussBorder_8u_C3R', p.src, p.dst, p.size, ...kOutside, spec, buffer);
}

function median(p, {side}) {
  const [mask, buffer] = maskBuffer(p, 'qvpiFilterMedianBorderGetBufferSize', side, [3]);
  p.call('qvpiFilterMedianBorder_8u_C3R', p.src, p.dst, p.size, mask, ...kOutside, buffer);
}

function bilateral(p, {radius, range}) {
  const [spec, buffer] = recordAndBlock(p, 'QvpiFilterBilateralBorderSpec', 'buffer',
                                        'qvpiFilterBilateralBorderGetSize', radius, p.size, 'qvp8u', 3);
  p.call('qvpiFilterBilateralBorderInit', radius, 'qvpNormL2', range, radius / 2, 'qvp8u', 3, spec);
  p.call('qvpiFilterBilateralBorder_8u_C3R', p.src, p.dst, p.size, ...kOutside, spec, buffer);
}

function sharpen(p, {side}) {
  const [mask, buffer] = maskBuffer(p, 'qvpiFilterFixedBorderGetBufferSize', Number(side), [3]);
  p.call('qvpiFilterSharpenBorder_8u_C3R', p.src, p.dst, p.size, mask, ...kOutside, buffer);
}

function sobel(p, {side}) {
  const [mask, buffer] = maskBuffer(p, 'qvpiFilterFixedBorderGetBufferSize', Number(side), [1]);
  const grey = green(p), edges = p.newImage('qvpiMalloc_8u_C1', 'Qvp8u', 'edges', p.width, p.height);
  p.call('qvpiFilterSobel_8u_C1R', grey, edges, p.size, mask, 'qvpNormL2', ...kOutside, buffer);
  toColour(p, edges);
}

function emboss(p, {depth}) {
  const kernel = p.newArray('Qvp16s', 'kernel', [2 * depth, depth, 0, depth, 1, -depth, 0, -depth, -2 * depth]);
  const side = p.newSize('side', 3, 3);
  const [spec, buffer] = recordAndBlock(p, 'QvpiFilterBorderSpec', 'buffer', 'qvpiFilterBorderGetSize', side, p.size,
                                        'qvp8u', 'qvp16s', 3);
  p.call('qvpiFilterBorderInit_16s', kernel, side, 1, 'qvp8u', 3, 'qvpRoundNear', spec);
  p.call('qvpiFilterBorder_8u_C3R', p.src, p.dst, p.size, ...kOutside, spec, buffer);
}

function extremes(p, side, getSize, filter) {
  const [mask, buffer] = maskBuffer(p, getSize, side, [3]);
  const anchor = p.newPoint('anchor', (side - 1) / 2, (side - 1) / 2);
  p.call(filter, p.src, p.dst, p.size, mask, anchor, ...kOutside, buffer);
}

const erode = (p, {side}) => extremes(p, side, 'qvpiFilterMinBorderGetBufferSize', 'qvpiFilterMinBorder_8u_C3R');
const dilate = (p, {side}) => extremes(p, side, 'qvpiFilterMaxBorderGetBufferSize', 'qvpiFilterMaxBorder_8u_C3R');

const percentOf = ({width, height}, {percent}) =>
  [width, height].map((side) => Math.max(1, Math.round(side * percent / 100)));

// The work buffer of a record, and the call.
function resize(p, name, spec, ...border) {
  const bytes = p.newResult('int', 'bytes'), offset = p.newPoint('offset', 0, 0);
  p.call('qvpiResizeGetBufferSize_8u', spec, p.dstSize, 3, bytes);
  p.call(name, p.src, p.dst, offset, p.dstSize, ...border, spec, p.newBlock('Qvp8u', 'buffer', bytes));
}

function thumbnail(p) {
  const spec = recordAlone(p, 'QvpiResizeSpec', 'qvpiResizeGetSize_8u', p.size, p.dstSize, 'qvpInterpolationSuper', 0);
  p.call('qvpiResizeSuperInit_8u', p.size, p.dstSize, spec);
  resize(p, 'qvpiResizeSuper_8u_C3R', spec);
}

function enlarge(p) {
  const [spec, scratch] = recordAndBlock(p, 'QvpiResizeSpec', 'scratch', 'qvpiResizeGetSize_8u', p.size, p.dstSize,
                                         'qvpInterpolationLanczos', 0);
  p.call('qvpiResizeLanczosInit_8u', p.size, p.dstSize, 3, spec, scratch);
  resize(p, 'qvpiResizeLanczos_8u_C3R', spec, ...kOutside);
}

function warp(p, name, spec) {
  const bytes = p.newResult('int', 'bytes'), offset = p.newPoint('offset', 0, 0);
  p.call('qvpiWarpGetBufferSize', spec, p.size, bytes);
  p.call(name, p.src, p.dst, offset, p.size, spec, p.newBlock('Qvp8u', 'buffer', bytes));
}

// What is around the picture, for the Init of a warp.
const black = (p) => ['qvpBorderConst', p.newArray('double', 'outside', [0, 0, 0]), 0];

function rotate(p, {angle, percent}) {
  const coeffs = p.newResults('double', 'coeffs', '[2][3]'), x = (p.width - 1) / 2, y = (p.height - 1) / 2;
  p.call('qvpiGetRotateScaleTransform', x, y, x, y, angle, percent / 100, coeffs);
  const spec = recordAlone(p, 'QvpiWarpSpec', 'qvpiWarpAffineGetSize', p.size, p.size, 'qvp8u', coeffs,
                           'qvpInterpolationLinear', 'qvpWarpForward', 'qvpBorderConst');
  p.call('qvpiWarpAffineLinearInit', p.size, p.size, 'qvp8u', coeffs, 'qvpWarpForward', 3, ...black(p), spec);
  warp(p, 'qvpiWarpAffineLinear_8u_C3R', spec);
}

function perspective(p, {tilt}) {
  const right = p.width - 1, bottom = p.height - 1, moved = right * tilt / 200;
  const from = p.newArray('double', 'from', [[0, 0], [right, 0], [right, bottom], [0, bottom]]);
  const to = p.newArray('double', 'to', [[moved, 0], [right - moved, 0], [right, bottom], [0, bottom]]);
  const spec = recordAlone(p, 'QvpiWarpSpec', 'qvpiWarpQuadGetSize', p.size, from, p.size, to, 'qvp8u',
                           'qvpInterpolationLinear', 'qvpBorderConst');
  p.call('qvpiWarpQuadLinearInit', p.size, from, p.size, to, 'qvp8u', 3, ...black(p), spec);
  warp(p, 'qvpiWarpPerspectiveLinear_8u_C3R', spec);
}

const mirror = (p, {axis}) => p.call('qvpiMirror_8u_C3R', p.src, p.dst, p.size, axis);

function noise(p, {sigma, seed}) {
  const bytes = p.newResult('int', 'bytes'), offset = p.newPoint('offset', 0, 0);
  p.call('qvpiNoiseGetSize', bytes);
  const spec = p.newBlock('QvpiNoiseSpec', 'spec', bytes);
  p.call('qvpiNoiseGaussInit', 0, sigma, seed, 0, spec);
  p.call('qvpiNoise_8u_C3R', p.src, p.dst, p.size, offset, 0, spec);
}

export const kGroups = {
  'Colours': [
    {run: brightness, title: 'Brightness', about: 'A number is added to each colour; what leaves 0 to 255 stops there.',
     parameters: [slider('change', 'Change', -128, 128, 1, 40)]},
    {run: toneCurve, title: 'Tone curve', about: 'A smooth curve through two points of yours.',
     parameters: [slider('shadows', 'Shadows', -60, 60, 1, 40), slider('lights', 'Lights', -60, 60, 1, 10)]},
    {run: invert, title: 'Invert', about: 'Each bit becomes the other one.', parameters: []},
    {run: posterise, title: 'Posterise', about: 'Only the highest bits of each colour stay.',
     parameters: [slider('bits', 'Bits', 1, 7, 1, 2)]},
    {run: swapChannels, title: 'Channel order', about: 'Red, green and blue change places.',
     parameters: [choice('order', 'Order', {BGR: 'BGR', GBR: 'GBR', BRG: 'BRG', RBG: 'RBG', GRB: 'GRB'})]},
  ],
  'Black and white': [
    {run: blackAndWhite, title: 'Otsu\'s threshold', about: 'The level that parts dark and light best is found first.',
     parameters: []},
    {run: localThreshold, title: 'Local threshold',
     about: 'Each pixel is compared with the mean around it, which suits text under uneven light.',
     parameters: [maskSlider(101, 31), slider('delta', 'Tolerance', -20, 40, 1, 6)]},
  ],
  'Smooth': [
    {run: gauss, title: 'Gauss', about: 'A blur, the same in all directions.',
     parameters: [slider('sigma', 'Sigma', 0.5, 20, 0.5, 3)]},
    {run: median, title: 'Median', about: 'The middle one of all values under a mask: noise goes, edges stay.',
     parameters: [maskSlider(21, 7)]},
    {run: bilateral, title: 'Bilateral', about: 'A mean of those pixels around that are alike.',
     parameters: [slider('radius', 'Radius', 1, 10, 1, 5), slider('range', 'Difference', 5, 100, 1, 40)]},
    {run: noise, title: 'Noise', about: 'The opposite: Gaussian noise, the same for the same seed on every machine.',
     parameters: [slider('sigma', 'Sigma', 1, 80, 1, 25), slider('seed', 'Seed', 1, 100, 1, 1)]},
  ],
  'Edges and shapes': [
    {run: sharpen, title: 'Sharpen', about: 'Pixels move away from those around them.',
     parameters: [choice('side', 'Mask', kMasks)]},
    {run: sobel, title: 'Sobel', about: 'How steep the picture is at each pixel.',
     parameters: [choice('side', 'Mask', kMasks)]},
    {run: emboss, title: 'Emboss', about: 'A filter by a kernel of 3 x 3 numbers.',
     parameters: [slider('depth', 'Depth', 1, 5, 1, 1)]},
    {run: erode, title: 'Erode', about: 'The least value under a mask: what is light shrinks.',
     parameters: [maskSlider(31, 7)]},
    {run: dilate, title: 'Dilate', about: 'The greatest value under a mask: what is light grows.',
     parameters: [maskSlider(31, 7)]},
  ],
  'Geometry': [
    {run: thumbnail, title: 'Reduce', about: 'Each pixel is the mean of an area.', size: percentOf,
     parameters: [slider('percent', 'Percent', 2, 99, 1, 25)]},
    {run: enlarge, title: 'Enlarge', about: 'Lanczos, three lobes: 36 pixels make one.', size: percentOf,
     parameters: [slider('percent', 'Percent', 101, 200, 1, 150)]},
    {run: rotate, title: 'Rotate', about: 'Around the middle, between four pixels.',
     parameters: [slider('angle', 'Degrees', -180, 180, 1, 20), slider('percent', 'Percent', 20, 200, 1, 90)]},
    {run: perspective, title: 'Perspective', about: 'The upper corners move together.',
     parameters: [slider('tilt', 'Tilt', 1, 90, 1, 40)]},
    {run: mirror, title: 'Mirror', about: 'Columns or rows change places.', parameters: [choice('axis', 'Axis',
     {qvpAxisVertical: 'left and right', qvpAxisHorizontal: 'top and bottom', qvpAxisBoth: 'both'})]},
  ],
};

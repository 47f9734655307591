// Pictures between the browser, which has red, green, blue and alpha, and the library's images of three channels.
import {newImage} from './program.js';

const kLongestSide = 1280;  // what sliders can follow

// Canvases are written and read by the processor alone.
const contextOf = (canvas) => canvas.getContext('2d', {willReadFrequently: true});

// Draws what is seen of a source, an image element, a bitmap or a video, on the canvas, white where nothing is.
export function draw(source, canvas) {
  const width = source.videoWidth || source.naturalWidth || source.width;
  const height = source.videoHeight || source.naturalHeight || source.height;
  const scale = Math.min(1, kLongestSide / Math.max(width, height));
  canvas.width = Math.max(1, Math.round(width * scale));
  canvas.height = Math.max(1, Math.round(height * scale));
  const context = contextOf(canvas);
  context.fillStyle = 'white';
  context.fillRect(0, 0, canvas.width, canvas.height);
  context.drawImage(source, 0, 0, canvas.width, canvas.height);
}

// The bytes of an image, four to a pixel, given to `use` with the place of its size, for as long as that takes.
function withPixels(q, {width, height}, use) {
  const pixels = q.qvpMalloc(4 * width * height), size = q.malloc(8);
  q.HEAP32.set([width, height], size / 4);
  try {
    return use(pixels, 4 * width, size);
  } finally {
    q.qvpFree(pixels);
    q.free(size);
  }
}

export function imageOf(q, canvas) {
  const {data} = contextOf(canvas).getImageData(0, 0, canvas.width, canvas.height);
  const image = newImage(q, canvas.width, canvas.height);
  withPixels(q, image, (pixels, step, size) => {
    q.HEAPU8.set(data, pixels);
    q.qvpiCopy_8u_AC4C3R(pixels, step, image.address, image.step, size);
  });
  return image;
}

export function show(q, image, canvas) {
  Object.assign(canvas, {width: image.width, height: image.height});
  const order = q.malloc(16);
  q.HEAP32.set([0, 1, 2, 3], order / 4);  // the last one is none of the source's and becomes 255
  withPixels(q, image, (pixels, step, size) => {
    q.qvpiSwapChannels_8u_C3C4R(image.address, image.step, pixels, step, size, order, 255);
    const data = new Uint8ClampedArray(q.HEAPU8.slice(pixels, pixels + step * image.height).buffer);
    contextOf(canvas).putImageData(new ImageData(data, image.width, image.height), 0, 0);
  });
  q.free(order);
}

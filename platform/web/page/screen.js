// The picture: draws what the program has collected (gl/Batch.h) by WebGL.

const cornerSize = 36; // bytes
const attributes = [ // of a corner: name, parts, kind, normalised, offset
  ['place', 4, 'FLOAT', false, 0],
  ['colour', 4, 'UNSIGNED_BYTE', true, 16],
  ['edges', 4, 'FLOAT', false, 20],
];

const vertexShader = `
  attribute vec4 place;
  attribute vec4 colour;
  attribute vec4 edges;
  varying vec4 shade;
  varying vec4 edge;
  void main() {
    gl_Position = place;
    shade = colour;
    edge = edges;
  }`;

// A pixel is as opaque as much of it a line covers.
const fragmentShader = `
  #ifdef GL_FRAGMENT_PRECISION_HIGH
  precision highp float;
  #else
  precision mediump float;
  #endif
  varying vec4 shade;
  varying vec4 edge;
  void main() {
    vec2 cover = clamp(edge.yw - abs(edge.xz), 0.0, 1.0);
    gl_FragColor = vec4(shade.rgb, shade.a * cover.x * cover.y);
  }`;

export class Screen {
  constructor(canvas) {
    this.canvas = canvas;
    this.gl = canvas.getContext('webgl', { antialias: false, alpha: false });
    if (!this.gl) return;
    this.prepare();
    canvas.addEventListener('webglcontextrestored', () => {
      this.prepare();
      this.gl.viewport(0, 0, canvas.width, canvas.height);
    });
  }

  /** Everything that a context which was lost and has come back needs again. */
  prepare() {
    const { gl } = this;
    const program = gl.createProgram();
    for (const [type, text] of [[gl.VERTEX_SHADER, vertexShader],
                                [gl.FRAGMENT_SHADER, fragmentShader]]) {
      const shader = gl.createShader(type);
      gl.shaderSource(shader, text);
      gl.compileShader(shader);
      gl.attachShader(program, shader);
    }
    attributes.forEach(([name], i) => gl.bindAttribLocation(program, i, name));
    gl.linkProgram(program);
    gl.useProgram(program);
    gl.bindBuffer(gl.ARRAY_BUFFER, gl.createBuffer());
    attributes.forEach(([, parts, kind, normalised, offset], i) => {
      gl.vertexAttribPointer(i, parts, gl[kind], normalised, cornerSize, offset);
      gl.enableVertexAttribArray(i);
    });
    gl.blendFunc(gl.SRC_ALPHA, gl.ONE_MINUS_SRC_ALPHA);
    gl.depthFunc(gl.LESS);
    gl.disable(gl.DITHER);
  }

  /** @returns false if there is no WebGL */
  open(width, height) {
    this.canvas.width = width;
    this.canvas.height = height;
    return this.gl !== null;
  }

  viewport(x, y, width, height) {
    this.gl.viewport(x, y, width, height);
  }

  clear(red, green, blue) {
    const { gl } = this;
    gl.clearColor(red, green, blue, 1);
    gl.clear(gl.COLOR_BUFFER_BIT | gl.DEPTH_BUFFER_BIT);
  }

  draw(memory, corners, count, depthTest, blending) {
    const { gl } = this;
    const set = (capability, on) => (on ? gl.enable(capability) : gl.disable(capability));
    set(gl.DEPTH_TEST, depthTest);
    set(gl.BLEND, blending);
    gl.bufferData(gl.ARRAY_BUFFER, memory.subarray(corners, corners + count * cornerSize),
                  gl.STREAM_DRAW);
    gl.drawArrays(gl.TRIANGLES, 0, count);
  }

  /** RGB, rows from the bottom. */
  read(x, y, width, height) {
    const { gl } = this;
    const rgba = new Uint8Array(width * height * 4);
    gl.readPixels(x, y, width, height, gl.RGBA, gl.UNSIGNED_BYTE, rgba);
    return rgba.filter((_, i) => i % 4 !== 3);
  }
}

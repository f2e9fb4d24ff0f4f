// What the program calls of the page, by its names in C. It is in page/, but for the lengths of
// the sounds. Module.page is the page's; addresses become what they stand for here.

mergeInto(LibraryManager.library, {
  // The canvas.
  kovOpenCanvas: function(width, height) { return Module.page.screen.open(width, height); },
  kovViewport: function(x, y, width, height) { Module.page.screen.viewport(x, y, width, height); },
  kovClear: function(red, green, blue) { Module.page.screen.clear(red, green, blue); },
  kovDraw: function(corners, count, depthTest, blending) {
    Module.page.screen.draw(HEAPU8, corners, count, depthTest, blending);
  },
  kovReadPixels: function(x, y, width, height, pixels) {
    HEAPU8.set(Module.page.screen.read(x, y, width, height), pixels);
  },

  // Window and clock.
  kovClock: function() { return Module.page.clock.now(); },
  kovShowWindow: function(width, height, fullScreen) {
    Module.page.showWindow(width, height, !!fullScreen);
  },
  kovShowTitle: function(title) { Module.page.showTitle(UTF8ToString(title)); },

  kovShowTime: function(time, length, speed, stands, seeks, end) {
    Module.page.showTime({ time, length, speed, stands: !!stands, seeks: !!seeks,
                           end: end === 0 ? null : UTF8ToString(end) });
  },
  kovShowProgress: function(percent) { Module.page.showProgress(percent); },

  // The sound layer. Handles are numbers.
  FMOD_System_Create: function(system) {
    HEAPU32[system >> 2] = 1; // there is one
    return 0;
  },
  FMOD_System_Init: function(system, maxChannels) {
    return Module.page.sound.start(maxChannels, kovSounds);
  },
  FMOD_System_CreateSound: function(system, path, mode, extra, sound) {
    const [result, handle] = Module.page.sound.create(UTF8ToString(path), false);
    HEAPU32[sound >> 2] = handle;
    return result;
  },
  FMOD_System_CreateStream: function(system, path, mode, extra, sound) {
    const [result, handle] = Module.page.sound.create(UTF8ToString(path), true);
    HEAPU32[sound >> 2] = handle;
    return result;
  },
  FMOD_System_PlaySound: function(system, index, sound, paused, channel) {
    const [result, handle] = Module.page.sound.play(sound, !!paused);
    if (handle !== 0) HEAPU32[channel >> 2] = handle;
    return result;
  },
  FMOD_Channel_SetVolume: function(channel, volume) {
    return Module.page.sound.setVolume(channel, volume);
  },
  FMOD_Channel_SetPaused: function(channel, paused) {
    return Module.page.sound.setPaused(channel, !!paused);
  },
  FMOD_Sound_GetLength: function(sound, length, unit) {
    const [result, ms] = Module.page.sound.lengthOf(sound);
    if (result === 0) HEAPU32[length >> 2] = ms;
    return result;
  },
  FMOD_Sound_Release: function(sound) { return Module.page.sound.release(sound); },
  FMOD_System_Update: function() {
    return 0; // the browser feeds its output itself
  },
});

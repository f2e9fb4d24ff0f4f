// The sound layer (platform/fmodex/fmodex.h) over Web Audio. Effects are fetched once the first
// picture is there, a song when it is due; how long each is is known beforehand. The browser lets
// nothing be heard before the player's first key.

const ok = 0, noFreeChannel = 10, fileNotFound = 23, invalidHandle = 36, invalidParameter = 37;

const folder = /^\/kov\//; // where the program has its files
const silence = 'silence.wav'; // plays in place of a song that isn't here

export class Sound {
  /**
   * @param page `isStopped()`, `afterFirstPicture(action)`, `lacks(path, reason)`
   * @param context that is there already, of a program before this one
   */
  constructor(page, context = null) {
    this.page = page;
    this.sounds = new Map(); // by handle
    this.channels = new Map(); // by handle, in the order of their starts
    this.lastHandle = 0;
    this.context = context; // null until the first key
  }

  /** @param lengths ms by path, of every sound that there is */
  start(mostChannels, lengths) {
    Object.assign(this, { mostChannels, lengths });
    return ok;
  }

  /** At each of the player's keys. */
  wake() {
    if (!this.context) {
      this.context = new AudioContext({ latencyHint: 'interactive' });
      for (const sound of this.sounds.values()) this.decode(sound);
      for (const channel of this.channels.values()) this.connect(channel);
    }
    if (this.context.state === 'suspended') this.follow();
  }

  /** Stands still while the game does. */
  follow() {
    const on = !this.page.isStopped();
    if (this.context) on ? this.context.resume() : this.context.suspend();
    for (const channel of this.channels.values()) this.runSong(channel);
  }

  /** @returns a code, and the sound's handle */
  create(name, isStream) {
    const path = name.replace(folder, '');
    if (path !== silence && !(path in this.lengths)) return [fileNotFound, 0];
    const sound = { path, isStream, length: this.lengths[path], bytes: null, samples: null };
    this.sounds.set(++this.lastHandle, sound);
    if (!isStream) this.page.afterFirstPicture(() => this.load(sound));
    return [ok, this.lastHandle];
  }

  async load(sound) {
    try {
      // The page has effects in fewer bytes.
      const answer = await fetch(sound.path.replace(/\.wav$/, '.flac'));
      if (!answer.ok) throw new Error(answer.statusText);
      sound.bytes = await answer.arrayBuffer();
      await this.decode(sound);
    } catch (error) {
      this.page.lacks(sound.path, error);
    }
  }

  async decode(sound) {
    if (!this.context || !sound.bytes) return;
    const { bytes } = sound;
    sound.bytes = null;
    sound.samples = await this.context.decodeAudioData(bytes);
  }

  /** @returns a code, and the channel's handle */
  play(handle, paused) {
    const sound = this.sounds.get(handle);
    if (!sound) return [invalidParameter, 0];
    if (sound.isStream) this.stop(sound);
    if (!this.makeRoom()) return [noFreeChannel, 0];
    const channel = { handle: ++this.lastHandle, sound, paused, level: 1 };
    this.channels.set(channel.handle, channel);
    if (sound.isStream) this.startSong(channel);
    else this.startEffect(channel);
    return [ok, channel.handle];
  }

  /** The oldest effect gives way. */
  makeRoom() {
    if (this.channels.size < this.mostChannels) return true;
    const oldest = [...this.channels.values()].find(channel => !channel.sound.isStream);
    if (oldest) this.drop(oldest);
    return Boolean(oldest);
  }

  startEffect(channel) {
    if (!this.context || !channel.sound.samples) return this.drop(channel);
    channel.source = new AudioBufferSourceNode(this.context, { buffer: channel.sound.samples });
    channel.source.onended = () => this.drop(channel);
    this.connect(channel);
    channel.source.start();
  }

  startSong(channel) {
    if (channel.sound.path === silence) return;
    channel.element = new Audio(channel.sound.path);
    channel.element.onended = () => this.drop(channel);
    channel.element.onerror = () => this.page.lacks(channel.sound.path, channel.element.error);
    this.connect(channel);
    this.runSong(channel);
  }

  connect(channel) {
    if (!this.context || !(channel.source || channel.element)) return;
    channel.source ??= this.context.createMediaElementSource(channel.element);
    channel.gain = new GainNode(this.context, { gain: channel.level });
    channel.source.connect(channel.gain).connect(this.context.destination);
  }

  runSong(channel) {
    if (!channel.element) return;
    if (channel.paused || this.page.isStopped()) channel.element.pause();
    // A refusal before the first key is no fault, and what can't be fetched comes to onerror.
    else channel.element.play().catch(() => {});
  }

  stop(sound) {
    for (const channel of this.channels.values()) if (channel.sound === sound) this.drop(channel);
  }

  drop(channel) {
    this.channels.delete(channel.handle);
    channel.gain?.disconnect();
    if (channel.element) {
      channel.element.onended = channel.element.onerror = null;
      channel.element.pause();
      channel.element.removeAttribute('src'); // ends the fetching, too
      channel.element.load();
    } else if (channel.source) {
      channel.source.onended = null;
      channel.source.stop();
    }
  }

  /** The program is there no more. */
  end() {
    for (const channel of this.channels.values()) this.drop(channel);
  }

  setVolume(handle, volume) {
    const channel = this.channels.get(handle);
    if (!channel) return invalidHandle;
    channel.level = Math.min(Math.max(volume || 0, 0), 1);
    if (channel.gain) channel.gain.gain.value = channel.level;
    return ok;
  }

  /** The game halts nothing but songs. */
  setPaused(handle, paused) {
    const channel = this.channels.get(handle);
    if (!channel) return invalidHandle;
    channel.paused = paused;
    this.runSong(channel);
    return ok;
  }

  lengthOf(handle) {
    const sound = this.sounds.get(handle);
    return sound ? [ok, sound.length] : [invalidParameter, 0];
  }

  release(handle) {
    const sound = this.sounds.get(handle);
    if (!sound) return invalidParameter;
    this.stop(sound);
    this.sounds.delete(handle);
    return ok;
  }
}

#include "replay/Film.h"

#include "game/FModSystem.h"
#include "platform/fmodex/Loopback.h"
#include "replay/Interruption.h"
#include "replay/Words.h"

#include <GL/gl.h>
#include <boost/filesystem.hpp>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cmath>
#include <cstring>
#include <iostream>

namespace quorva::replay {

namespace {

constexpr std::uint32_t picture_duration = 30; // ms
constexpr std::uint32_t rate = 44100;          // Hz
constexpr std::uint64_t piece = 1024;          // samples rendered at once
constexpr std::uint32_t look_interval = 500;   // ms, the real clock
const char* const picture_file = "pictures.mkv";
const char* const sound_file = "sound.mka";

using Words = std::vector<std::string>;

Words ffmpeg(const Words& more) {
    Words words = {"ffmpeg", "-nostdin", "-v", "error", "-y"};
    words.insert(words.end(), more.begin(), more.end());
    return words;
}

Words pictureWords(int width, int height) {
    const std::string size = std::to_string(width) + 'x' + std::to_string(height);
    // An odd size gets a row or column more: the format halves the colours' resolution.
    return ffmpeg({"-f", "rawvideo", "-pix_fmt", "bgr0", "-s", size, "-framerate", "100/3", "-i",
                   "pipe:0", "-vf", "vflip,pad=ceil(iw/2)*2:ceil(ih/2)*2", "-c:v", "libx264",
                   "-pix_fmt", "yuv420p", picture_file});
}

Words soundWords() {
    return ffmpeg({"-f", "s16le", "-ar", std::to_string(rate), "-ac", "2", "-i", "pipe:0", "-c:a",
                   "aac", "-b:a", "192k", sound_file});
}

/// A tenth of a second, as the film will be.
Words testWords(const std::string& path) {
    return {"ffmpeg",   "-y",       "-nostdin",      "-v",          "quiet",   "-f",
            "lavfi",    "-i",       "color=s=16x16", "-f",          "lavfi",   "-i",
            "anullsrc", "-t",       "0.1",           "-c:v",        "libx264", "-c:a",
            "aac",      "-pix_fmt", "yuv420p",       "file:" + path};
}

/// Any ffmpeg can do this.
Words soundTestWords() {
    return {"ffmpeg",   "-nostdin",  "-v", "quiet", "-f",   "lavfi", "-i",
            "anullsrc", "-frames:a", "1",  "-f",    "null", "-"};
}

} // namespace

void Film::requireTarget(const std::string& path) {
    namespace fs = boost::filesystem;
    const int made = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (made < 0) throw std::runtime_error("can't make " + path + ": " + std::strerror(errno));
    close(made);
    const ProgramEnd test = runProgram(testWords(path));
    boost::system::error_code ignored; // ffmpeg may have removed it
    fs::remove(path, ignored);
    if (test.code == 0 || test.interrupted) return;
    if (runProgram(soundTestWords()).code != 0)
        throw std::runtime_error("films are made by the program ffmpeg; please install the package "
                                 "ffmpeg");
    throw std::runtime_error("ffmpeg makes no films like " + fs::path(path).filename().string() +
                             "; an ending such as .mp4 or .mkv tells it how");
}

Film::Film(Script& script_, const boost::filesystem::path& songs_, const Format& format_)
    : WindowPlayback(script_, songs_), format(format_), time(format_.full),
      pictures(pictureWords(format.width, format.height)), sound(soundWords()),
      picture(static_cast<std::size_t>(format.width) * static_cast<std::size_t>(format.height)) {
    platform::fmodex::useLoopback();
}

SDL_Surface* Film::openWindow(int, int, int depth, std::uint32_t flags) {
    return WindowPlayback::openWindow(format.width, format.height, depth, flags);
}

/// The whole of the game's picture, in the middle.
void Film::setViewport(int width, int height) {
    scale = std::min(static_cast<double>(format.width) / width,
                     static_cast<double>(format.height) / height);
    const auto w = static_cast<int>(std::lround(width * scale));
    const auto h = static_cast<int>(std::lround(height * scale));
    placeViewport((format.width - w) / 2, (format.height - h) / 2, w, h);
}

float Film::lineWidth(float width) {
    return static_cast<float>(width * scale);
}

bool Film::draws() {
    return isFilmed() && WindowPlayback::draws();
}

void Film::show() {
    look();
    if (sessionTime() < format.from) return;
    hasBegun = true;
    if (sessionTime() >= format.to) return stop();
    if (somethingGoesOn()) time.enliven();
    takePicture();
}

/// The last frame, up to now, and what is heard meanwhile.
void Film::catchUp() {
    if (hasBegun) fill(std::min(sessionTime(), format.to) - lastTime);
    lastTime = std::min(sessionTime(), format.to);
}

/// In a game that isn't paused, or in the menus by a key.
bool Film::somethingGoesOn() const {
    return progress().inGame ? progress().ticked : !pass().events.empty();
}

/// For a stretch of the session.
void Film::fill(std::uint32_t ms) {
    const std::uint64_t before = filmed;
    FilmTime then = time;
    filmed += time.advance(ms);
    const auto volumeAt = [&](std::uint64_t at) {
        return then.volume(static_cast<std::uint32_t>(at - before));
    };
    while ((pictureCount + 1) * picture_duration <= filmed && !isEnding()) {
        look();
        const std::uint64_t at = ++pictureCount * picture_duration;
        hear(at * rate / 1000, volumeAt(at));
        if (!pictures.write(picture.data(), picture.size() * sizeof picture[0])) stop();
    }
    hear(filmed * rate / 1000, volumeAt(filmed));
}

/// @param volume 0 to 1, to be reached at that sample, but for a slow return
void Film::hear(std::uint64_t until, double volume) {
    std::array<std::int16_t, 2 * piece> samples{};
    FMOD_SYSTEM* const system = FModSystem::Instance().system;
    while (heard < until && !isEnding()) {
        const std::uint64_t count = std::min(piece, until - heard);
        FMOD_System_Update(system);
        platform::fmodex::render(system, samples.data(), static_cast<int>(count));
        heard += count;
        const double loudness = time.nextVolume(volume);
        for (std::int16_t& sample : samples)
            sample = static_cast<std::int16_t>(sample * loudness);
        if (!sound.write(samples.data(), 2 * count * sizeof samples[0])) stop();
    }
}

void Film::takePicture() {
    glReadPixels(0, 0, format.width, format.height, GL_BGRA, GL_UNSIGNED_BYTE, picture.data());
}

/// Now and then, as each picture shown waits for the monitor: looks whether the user wants to stop.
void Film::look() {
    const std::uint32_t clock_ = Tape::clock();
    if (isInterrupted()) stop();
    if (clock_ - looked < look_interval) return;
    looked = clock_;
    Tape::endFrame();
    SDL_Event event;
    while (Tape::poll(&event) != 0)
        if (event.type == SDL_QUIT) stop();
    sayProgress();
}

void Film::sayProgress() const {
    if (!hasBegun) return;
    const double length = format.to - format.from;
    const double done = std::max((lastTime - format.from) / length, 0.001);
    const double left = looked * (1.0 / done - 1.0); // the clock began with the program
    std::cout << "\r" << static_cast<int>(100.0 * done) << " %, time left "
              << minutes(static_cast<std::uint64_t>(left)) << "   " << std::flush;
}

void Film::finishFilm(const std::string& path) {
    std::cout << "\r100 %                    \n";
    const bool written = pictures.finish() && sound.finish();
    if (!written || runProgram(ffmpeg({"-i", picture_file, "-i", sound_file, "-c", "copy",
                                       "-movflags", "+faststart", "file:" + path}))
                            .code != 0)
        throw std::runtime_error("ffmpeg has failed");
}

} // namespace quorva::replay

#include "replay/Film.h"

#include "game/FModSystem.h"
#include "platform/fmodex/Mixer.h"
#include "replay/Words.h"

#include <GL/gl.h>

#include <algorithm>
#include <array>
#include <iostream>

namespace quorva::replay {

namespace {

constexpr std::uint32_t picture_duration = 30;  // ms
constexpr std::uint32_t rate = 44100;           // Hz
constexpr std::uint64_t piece = 1024;           // samples rendered at once
constexpr std::uint32_t report_interval = 1000; // ms
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

} // namespace

Film::Film(Script& script_, const boost::filesystem::path& songs_, const Format& format_)
    : Screen(script_, songs_), format(format_), pictures(pictureWords(format.width, format.height)),
      sound(soundWords()),
      picture(static_cast<std::size_t>(format.width) * static_cast<std::size_t>(format.height)) {
    platform::fmodex::useLoopback();
}

SDL_Surface* Film::openWindow(int, int, int depth, std::uint32_t flags) {
    return Screen::openWindow(format.width, format.height, depth, flags);
}

/// The whole of the game's picture, in the middle.
void Film::setViewport(int width, int height) {
    scale = std::min(static_cast<double>(format.width) / width,
                     static_cast<double>(format.height) / height);
    const auto w = static_cast<int>(width * scale), h = static_cast<int>(height * scale);
    placeViewport((format.width - w) / 2, (format.height - h) / 2, w, h);
}

float Film::lineWidth(float width) {
    return static_cast<float>(width * scale);
}

void Film::show() {
    if (begun == 0) begun = said = Tape::clock();
    fill(now() - format.start);
    takePicture();
    sayProgress();
}

/// The last frame, and what is heard meanwhile, up to then.
void Film::fill(std::uint32_t place) {
    while ((pictureCount + 1) * picture_duration <= place && !isEnding()) {
        ++pictureCount;
        hear(pictureCount * picture_duration * rate / 1000);
        if (!pictures.write(picture.data(), picture.size() * sizeof picture[0])) stop();
    }
    hear(static_cast<std::uint64_t>(place) * rate / 1000);
}

void Film::hear(std::uint64_t until) {
    std::array<std::int16_t, 2 * piece> samples;
    FMOD_SYSTEM* const system = FModSystem::Instance().system;
    while (heard < until && !isEnding()) {
        const std::uint64_t count = std::min(piece, until - heard);
        FMOD_System_Update(system);
        platform::fmodex::render(system, samples.data(), static_cast<int>(count));
        heard += count;
        if (!sound.write(samples.data(), 2 * count * sizeof samples[0])) stop();
    }
}

void Film::takePicture() {
    glReadPixels(0, 0, format.width, format.height, GL_BGRA, GL_UNSIGNED_BYTE, picture.data());
}

/// And shows a picture: each would wait for the monitor.
void Film::sayProgress() {
    const std::uint32_t time = Tape::clock();
    if (time - said < report_interval) return;
    said = time;
    Tape::endFrame();
    SDL_Event event;
    while (Tape::poll(&event) != 0)
        if (event.type == SDL_QUIT) stop();
    const double done = std::max<std::uint64_t>(pictureCount, 1) * picture_duration;
    const double left = std::max(0.0, (time - begun) * (format.duration / done - 1.0));
    std::cout << "\r" << static_cast<int>(std::min(100.0, 100.0 * done / format.duration))
              << " %, time left " << minutes(static_cast<std::uint64_t>(left)) << "   "
              << std::flush;
}

void Film::finishFilm(const std::string& path) {
    std::cout << "\r100 %                    \n";
    const bool written = pictures.finish() && sound.finish();
    if (!written || runProgram(ffmpeg({"-i", picture_file, "-i", sound_file, "-c", "copy",
                                       "-movflags", "+faststart", "file:" + path})) != 0)
        throw std::runtime_error("ffmpeg has failed");
}

} // namespace quorva::replay

#include "Framework/Graphics/TGA.h"

#include "Framework/Files.h"

#include <algorithm>
#include <new>

namespace quorva::graphics {

namespace {

// Offsets into the header.
enum Header : std::size_t {
    id_length = 0,
    map_type = 1,
    image_type = 2,
    map_first = 3,
    map_length = 5,
    map_entry_bits = 7,
    x_origin = 8,
    y_origin = 10,
    width_field = 12,
    height_field = 14,
    bits_per_pixel = 16,
    descriptor = 17,
    header_size = 18,
};

enum ImageType : unsigned char { mapped = 1, true_colour = 2, packed_mapped = 9, packed = 10 };

constexpr std::streamoff largest_file = 512 << 20; // bytes; 8192 by 8192 pixels take half of it
constexpr std::size_t palette_size = 768;          // 256 entries of three bytes
constexpr int palette_entries = 256, palette_entry_bits = 24;
constexpr int last_image_type = 11, last_descriptor = 32;
constexpr unsigned char top_down = 0x20;    // flag of the descriptor
constexpr unsigned char run_flag = 0x80;    // of a packet: one pixel, repeated
constexpr std::size_t longest_packet = 128; // pixels

} // namespace

TGA::TGA(std::string path) {
    if (load(path) != success) forget();
}

void TGA::forget() {
    width = height = 0;
    bitsPerPixel = imageSize = 0;
    image.clear();
    palette.clear();
    fileData.clear();
}

unsigned char TGA::at(std::size_t offset) const {
    return offset < fileData.size() ? fileData[offset] : 0;
}

int TGA::word(std::size_t offset) const {
    return at(offset) | at(offset + 1) << 8;
}

bool TGA::hasColourMap() const {
    return at(map_type) == 1;
}

std::size_t TGA::dataOffset() const {
    return header_size + at(id_length) + (hasColourMap() ? palette_size : 0);
}

int TGA::load(std::string& path) {
    forget();
    try {
        const int read = readFile(path);
        if (read != success) return read;
        const int header = readHeader();
        if (header != success) return header;
        const int pixels = loadPixels();
        if (pixels != success) return pixels;
        // Deliberate, though GL takes the bottom row first: so textures have always been.
        if ((at(descriptor) & top_down) == 0) flipImg();
        fileData.clear();
        return success;
    } catch (const std::bad_alloc&) {
        return out_of_memory;
    }
}

int TGA::readFile(const std::string& path) {
    std::ifstream file = utility::openForReading(path);
    if (!file.seekg(0, std::ios::end)) return no_file;
    const std::streamoff size = file.tellg();
    if (size > largest_file) return out_of_memory;
    fileData.resize(static_cast<std::size_t>(size));
    file.seekg(0).read(reinterpret_cast<char*>(fileData.data()), size);
    return file ? success : no_file;
}

int TGA::readHeader() {
    if (fileData.empty()) return no_file;
    if (at(map_type) >= 2 || at(image_type) > last_image_type) return unsupported;
    if (hasColourMap() && (word(map_first) != 0 || word(map_length) != palette_entries ||
                           at(map_entry_bits) != palette_entry_bits))
        return unsupported;
    const int w = static_cast<std::int16_t>(word(width_field) - word(x_origin));
    const int h = static_cast<std::int16_t>(word(height_field) - word(y_origin));
    if (w < 1 || h < 1) return bad_size;
    if (at(descriptor) > last_descriptor) return unsupported;
    width = static_cast<std::int16_t>(w);
    height = static_cast<std::int16_t>(h);
    bitsPerPixel = at(bits_per_pixel);
    imageType = at(image_type);
    const std::uint64_t size = std::uint64_t(w) * std::uint64_t(h) * pixelSize();
    if (size > UINT32_MAX) return out_of_memory;
    imageSize = static_cast<std::uint32_t>(size);
    return success;
}

int TGA::loadPixels() {
    const bool isMapped = imageType == mapped || imageType == packed_mapped;
    const bool isPacked = imageType == packed || imageType == packed_mapped;
    if (!isMapped && imageType != true_colour && imageType != packed) return unsupported;
    if (isMapped != hasColourMap()) return bad_size;
    const int pixels = isPacked ? loadTgaRLEData() : loadRawData();
    if (pixels != success) return pixels;
    if (isMapped) return loadTgaPalette();
    BGRtoRGB();
    return success;
}

int TGA::loadRawData() {
    if (fileData.size() < dataOffset() + imageSize) return bad_size;
    const auto first = fileData.begin() + static_cast<std::ptrdiff_t>(dataOffset());
    image.assign(first, first + imageSize);
    return success;
}

int TGA::loadTgaPalette() {
    palette.resize(palette_size);
    const std::size_t first = header_size + at(id_length);
    for (std::size_t i = 0; i < palette_size; i += 3)
        for (std::size_t j = 0; j < 3; ++j)
            palette[i + j] = at(first + i + 2 - j);
    return success;
}

int TGA::loadTgaRLEData() {
    // A header of 18 bytes can ask for 4 GiB. No packing makes more than this of a byte.
    if (imageSize / longest_packet > fileData.size()) return bad_size;
    // The last packet may overrun the image, and is written in full.
    image.resize(imageSize + longest_packet * pixelSize());
    std::size_t source = dataOffset();
    std::size_t written = 0;
    while (written < imageSize && source < fileData.size()) { // else the rest stays black
        const unsigned char control = at(source++);
        const bool isRun = (control & run_flag) != 0;
        const std::size_t count = (control & ~run_flag) + 1U;
        for (std::size_t i = 0; i < count; ++i) {
            for (std::size_t j = 0; j < pixelSize(); ++j)
                image[written++] = at(source + j);
            if (!isRun) source += pixelSize();
        }
        if (isRun) source += pixelSize();
    }
    image.resize(imageSize);
    return success;
}

void TGA::BGRtoRGB() {
    const std::size_t stride = pixelSize();
    if (stride == 0) return;
    // Pixels of less than 24 bits go by the same rule, so that they mix with the next ones.
    for (std::size_t i = 0; i + 2 < image.size(); i += stride)
        std::swap(image[i], image[i + 2]);
}

void TGA::flipImg() {
    const std::ptrdiff_t row =
        static_cast<std::ptrdiff_t>(width) * static_cast<std::ptrdiff_t>(pixelSize());
    for (std::ptrdiff_t top = 0, bottom = height - 1; top < bottom; ++top, --bottom)
        std::swap_ranges(image.begin() + top * row, image.begin() + (top + 1) * row,
                         image.begin() + bottom * row);
}

} // namespace quorva::graphics

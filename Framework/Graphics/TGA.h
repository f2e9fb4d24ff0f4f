#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quorva::graphics {

/// A Truevision TGA file as rows of pixels for glTexImage2D: true colour as RGB or RGBA, or
/// colour-mapped with its palette. A file that lies about its size gives black, or no image if
/// nothing could unpack to that size; never a fault.
/// Truevision TGA, version 2.0, 1991.
class TGA {
public:
    enum Result {
        success = 1,
        no_file = 2,
        out_of_memory = 4,
        bad_size = 8, ///< or a colour map that does not suit the image type
        unsupported = 64,
    };

    /// A file that can't be loaded leaves no image, and sizes of zero.
    explicit TGA(std::string path);
    virtual ~TGA() = default;

    // Pixels follow one another, rows too: without padding. Valid until the next load.
    virtual int getBPP() const { return static_cast<int>(bitsPerPixel); } ///< bits a pixel
    virtual int getWidth() const { return width; }
    virtual int getHeight() const { return height; }
    virtual const unsigned char* getImg() const { return bytesOf(image); }
    virtual const unsigned char* getPalette() const { return bytesOf(palette); } ///< 256 RGB

    /// Reads the file in place of what was there.
    /// @return a Result, as the steps below
    int load(std::string& path);

    // The steps of load, in its order.
    int readHeader();
    int loadRawData();
    int loadTgaRLEData();
    int loadTgaPalette();
    void BGRtoRGB(); ///< alpha stays
    void flipImg();  ///< top row for bottom row

private:
    using Bytes = std::vector<unsigned char>;

    static const unsigned char* bytesOf(const Bytes& bytes) {
        return bytes.empty() ? nullptr : bytes.data();
    }
    int readFile(const std::string& path);
    int loadPixels();
    void forget();
    bool hasColourMap() const;
    std::size_t pixelSize() const { return bitsPerPixel / 8; }
    // Of the file, by its offsets.
    std::size_t dataOffset() const;             ///< where the pixels begin
    unsigned char at(std::size_t offset) const; ///< 0 past the end
    int word(std::size_t offset) const;         ///< two bytes, the low one first

    std::int16_t width = 0; ///< pixels
    std::int16_t height = 0;
    std::uint32_t bitsPerPixel = 0;
    std::uint32_t imageSize = 0; ///< bytes
    unsigned char imageType = 0;
    Bytes image;
    Bytes palette;
    Bytes fileData; ///< the whole file, while it is being read
};

} // namespace quorva::graphics

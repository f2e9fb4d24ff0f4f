#!/bin/sh
# Makes the pictures and the film of docs/gallery again, from games played by a program by fixed
# rules, on a display of its own. Takes about ten minutes once the program is built: the late field
# is the fullest of ten minutes of play.
set -eu
cd "$(dirname "$0")/.."

tools/install_packages.sh build gallery
cmake -B build/gallery -G Ninja -DCMAKE_BUILD_TYPE=Release -DKOV_GALLERY=ON >/dev/null
cmake --build build/gallery --target gallery >build/gallery.log ||
    { cat build/gallery.log; exit 1; }
program=$PWD/build/gallery/tools/gallery/gallery
gallery=$PWD/docs/gallery

# A game's folder of its own: it writes a high score.
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
for folder in data fonts textures; do ln -s "$PWD/$folder" "$work/$folder"; done
mkdir "$work/Songs" "$work/wide" "$work/narrow" "$work/film"
cd "$work"
xvfb-run -a -s "-noreset -screen 0 1920x1080x24" sh -c "
    for scene in pages fence power-ups death late verdicts; do
        rm -f s.dat # the record is made anew
        '$program' \$scene wide 1920 1080 || exit 1
        rm -f s.dat
        '$program' \$scene narrow 800 600 || exit 1
    done
    '$program' film film 960 540"

# Few colours are enough for lines; no dither, so that they stay clean.
save_pictures() { # from a folder, to a folder
    mkdir -p "$2"
    for picture in "$1"/*.ppm; do
        convert "$picture" -dither None -colors 96 -strip "PNG8:$2/$(basename "$picture" .ppm).png"
    done
    optipng -quiet -o2 "$2"/*.png
}
rm -f "$gallery"/*.png "$gallery"/800x600/*.png
save_pictures wide "$gallery"
save_pictures narrow "$gallery/800x600"
mogrify -resize 50% -dither None -colors 64 -format gif film/*.ppm
gifsicle -O3 --delay 6 --loopcount --colors 64 --lossy=30 film/*.gif -o "$gallery/play.gif"
"$gallery/../../tools/manual_pictures.py"
du -sh "$gallery"

#!/bin/sh
# Makes the pictures and the film of docs/gallery again, from a game played by a program with a
# fixed seed, on a display of its own. Takes about a minute once the program is built.
set -eu
cd "$(dirname "$0")/.."

wide_seed=5 narrow_seed=5

tools/install_packages.sh build gallery
cmake -B build/gallery -G Ninja -DCMAKE_BUILD_TYPE=Release -DKOV_GALLERY=ON >/dev/null
cmake --build build/gallery --target gallery >build/gallery.log || { cat build/gallery.log; exit 1; }
program=$PWD/build/gallery/tools/gallery/gallery
gallery=$PWD/docs/gallery

# A game's folder of its own: it writes a high score.
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
for folder in data fonts textures; do ln -s "$PWD/$folder" "$work/$folder"; done
mkdir "$work/Songs" "$work/wide" "$work/narrow" "$work/film"
cd "$work"
xvfb-run -a -s "-screen 0 1920x1080x24" sh -c "
    '$program' pictures wide 1920 1080 $wide_seed &&
    '$program' pictures narrow 800 600 $narrow_seed &&
    '$program' film film 960 540 $wide_seed"

# Few colours are enough for lines; no dither, so that they stay clean.
save_pictures() { # from a folder, to a folder
    mkdir -p "$2"
    for picture in "$1"/*.ppm; do
        convert "$picture" -dither None -colors 96 -strip "PNG8:$2/$(basename "$picture" .ppm).png"
    done
    optipng -quiet -o2 "$2"/*.png
}
save_pictures wide "$gallery"
save_pictures narrow "$gallery/800x600"
mogrify -resize 50% -dither None -colors 64 -format gif film/*.ppm
gifsicle -O3 --delay 6 --loopcount --colors 64 --lossy=30 film/*.gif -o "$gallery/play.gif"
"$gallery/../../tools/manual_pictures.py"
du -sh "$gallery"

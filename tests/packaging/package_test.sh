#!/bin/sh
# What the package says of itself is true. Usage: package_test.sh SOURCES VERSION
set -u
cd "$1" || exit
version=$2 failures=0
says() { # file, text
    grep -qF -e "$2" "$1" || { echo "FAILED: $1 lacks '$2'" && failures=1; }
}

for asset in data/* fonts/* Sounds/* Songs/* textures/*; do
    case $asset in
    */LICENSE*) ;;
    *) says debian/copyright " $asset" ;;
    esac
done
says debian/changelog "kov ($version)"
says packaging/org.kovgame.kov.metainfo.xml "<release version=\"$version\""
for page in kov kov-keys kov-replay; do says packaging/$page.6 "\"KOV $version\""; done
says manual.html "version $version"
says game/AboutMenu.cpp "KOV $version"
[ "$(./play.sh --version)" = "KOV $version" ] || { echo "FAILED: play.sh --version" && failures=1; }

for language in de es fr it pl pt ru; do
    says packaging/kov-replay.desktop "Comment[$language]="
    for key in GenericName Comment Keywords; do
        says packaging/kov.desktop "${key}[$language]="
    done
    [ "$(grep -c "^Name\[$language\]=" packaging/kov.desktop)" -eq 5 ] ||
        { echo "FAILED: actions in $language" && failures=1; }
done
exit $failures

# shellcheck shell=sh
# For scripts to read: a folder of their own, removed at the end, and a display of their own.
folder=$(mktemp -d)
Xvfb -displayfd 3 -screen 0 1024x768x24 -noreset -iglx 3>"$folder/display" 2>/dev/null &
server=$!
trap 'kill $server; rm -rf "$folder"' EXIT
while [ ! -s "$folder/display" ]; do
    kill -0 $server || exit 1
    sleep 0.1
done
DISPLAY=:$(cat "$folder/display")
export DISPLAY ALSOFT_DRIVERS=null ASAN_OPTIONS=detect_leaks=0 # GL drivers leak

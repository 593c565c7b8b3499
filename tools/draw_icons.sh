#!/usr/bin/env bash
# Draws the installed sizes of the program's icon and of the icon of project files from their SVG sources. Needs
# rsvg-convert (librsvg2-bin).
set -euo pipefail

icons="$(dirname "$(readlink -f "$0")")/../data/icons"

# draw SOURCE CONTEXT NAME SIZE
draw() {
    local folder="$icons/hicolor/${4}x$4/$2"
    mkdir -p "$folder"
    rsvg-convert --width="$4" --height="$4" "$icons/$1.svg" --output "$folder/$3.png"
}

for size in 16 22 24 32 48 64 128 256; do
    source=lanterra
    [ "$size" -gt 24 ] || source=lanterra-small
    draw "$source" apps lanterra "$size"
    draw application-x-lanterra-project mimetypes application-x-lanterra-project "$size"
done

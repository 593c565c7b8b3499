#!/bin/sh
# Draws the report's images from their SVG sources. Needs rsvg-convert and ImageMagick, and the DejaVu fonts.
set -eu

images="$(dirname "$0")/../data/images"
for name in logo inorder; do
    rsvg-convert --width=600 --height=60 "$images/$name.svg" |
        convert png:- +dither -colors 256 "gif:$images/$name.gif"
done

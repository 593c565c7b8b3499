#!/bin/sh
# Draws the images of the reports from their SVG sources. Needs rsvg-convert and ImageMagick, and the DejaVu fonts.
set -eu

data="$(dirname "$0")/../data"
for name in logo inorder; do
    rsvg-convert --width=600 --height=60 "$data/images/$name.svg" |
        convert png:- +dither -colors 256 "gif:$data/images/$name.gif"
done
# GIF knows no half transparent edges, so these are drawn without.
for name in Navysq Redsq Green_Ball182 Arrow6280; do
    rsvg-convert "$data/report/$name.svg" |
        convert png:- -channel A -threshold 50% +channel +dither -colors 64 "gif:$data/report/$name.gif"
done

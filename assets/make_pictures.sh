#!/bin/sh
# Draws the program's pictures with ImageMagick: the emblem of the start
# screen (ovt.gif), the banner of the header screens (ovt2.gif) and the window
# icon (qormain.ico). Run from anywhere; writes beside this script.
set -eu
cd "$(dirname "$0")"
NAVY='#1f3b73'
GOLD='#d9a520'
LETTERS='ΟΒΤ'
FONT=DejaVu-Sans-Bold

# Emblem, 120x80: white letters on a navy card with a gold rule.
convert -size 120x80 xc:none \
  -fill "$NAVY" -draw 'roundrectangle 2,2 117,77 10,10' \
  -fill "$GOLD" -draw 'rectangle 14,58 105,61' \
  -font "$FONT" -pointsize 34 -fill white -gravity north -annotate +0+12 "$LETTERS" \
  -colors 16 ovt.gif

# Banner, 240x64: the emblem's letters at the left of a navy band.
convert -size 240x64 xc:none \
  -fill "$NAVY" -draw 'roundrectangle 1,1 238,62 8,8' \
  -fill "$GOLD" -draw 'rectangle 92,14 95,49' \
  -font "$FONT" -pointsize 30 -fill white -gravity west -annotate +10+0 "$LETTERS" \
  -fill "$GOLD" -draw 'rectangle 110,29 226,33' \
  -colors 16 ovt2.gif

# Icon, 32x32: a navy disc with a gold ring and a white letter.
convert -size 32x32 xc:none \
  -fill "$NAVY" -stroke "$GOLD" -strokewidth 2 -draw 'circle 15.5,15.5 15.5,1.5' \
  -stroke none -font "$FONT" -pointsize 20 -fill white -gravity center \
  -annotate +0+0 "$(printf '%s' "$LETTERS" | cut -c1-2)" \
  qormain.ico

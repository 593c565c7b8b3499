#!/usr/bin/env bash
# Holds the include lines of src/ against tools/rooms.txt: static libraries accept a cycle silently, and a library
# that is linked lets every header of it through. Also finds headers of widgets outside the rooms that draw.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

faults=0
complain() {
    echo "$1"
    faults=1
}

for folder in src/*/; do
    room=$(basename "$folder")
    row=$(grep -E "^$room( |\$)" tools/rooms.txt) || { complain "$folder: no row in tools/rooms.txt"; continue; }
    while IFS=: read -r file line include; do
        other=$(sed -E 's/.*"([^/"]+)\/.*/\1/' <<<"$include")
        [[ " $row " == *" $other "* ]] || complain "$file:$line: room $room may not include room $other"
    done < <(grep -rnE '^#include "[a-z_]+/' "$folder" || true)
    while IFS=: read -r file line _; do
        complain "$file:$line: a header of this project is named without its room"
    done < <(grep -rnE '^#include "[^/"]+"' "$folder" --include='*.h' --include='*.cpp' | grep -vE '\.moc"|"ui_[a-z_]+\.h"' || true)
done

while IFS=: read -r file line _; do
    complain "$file:$line: a header of widgets outside the rooms that draw"
done < <(grep -rnE '^#include <(QtWidgets|QtGui|QtPrintSupport)?/?Q(Widget|Application|Dialog|MainWindow|MessageBox|Printer|Pixmap|Icon|Painter)' \
    src --include='*.h' --include='*.cpp' | grep -vE '^src/(window|app)/' || true)

exit $faults

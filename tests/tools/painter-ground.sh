#!/bin/sh
# Whatever stands on a map stands on the ground that its name tells of: on land, by the water, in the
# woods, among the peaks; under ground, in a hall. Only what a wreck holds lies in the sea.
# usage: painter-ground.sh PAINTER WORLD_DIR
set -eu
painter=$1
world=$2

check() {
  "$painter" --ground "$1" | LC_ALL=C awk -v data="$world/$1.data" -v ground="$2" '
    # A cell of the ground is this wide, in units of the map.
    BEGIN {
      Cell = 4
      Coast = "See$|bucht|Hafen|Steg |Strand|Leuchtturm|Robben|Langschiff|Schiffsfriedhof"
      Stream = "ufer|Bachlauf|Gezeiten"
    }
    function at(x, y) { return substr(row[int(y / Cell)], int(x / Cell) + 1, 1) }
    function near(x, y, signs, reach,    dx, dy) {
      for (dy = -reach; dy <= reach; dy += Cell)
        for (dx = -reach; dx <= reach; dx += Cell)
          if (dx * dx + dy * dy <= reach * reach && index(signs, at(x + dx, y + dy)) &&
              at(x + dx, y + dy) != "")
            return 1
      return 0
    }
    function fail(why) { print data ": " name " at " x "," y " " why; failed = 1 }
    { row[NR - 1] = $0 }
    END {
      while ((getline line < data) > 0) {
        if (line ~ /^;/ || split(line, part, "=") < 2 || part[2] !~ /^ *[0-9]/)
          continue
        name = part[1]
        split(part[2], place, ",")
        x = place[1] + 0
        y = place[2] + 0
        ++count
        if (!index(ground, at(x, y)) && name !~ /Seeschwalbe/)
          fail("stands on " at(x, y))
        if (name ~ Coast "|" Stream && !near(x, y, "~r", 40))
          fail("has no water near")
        if (name ~ /(Tannen|Dornen)wald|hain/ && !near(x, y, "fo", 40))
          fail("has no woods near")
        if (name ~ /pass$|Gletscher|Rauchhorn|klamm/ && !near(x, y, "^s", 32))
          fail("has no heights near")
        if (name ~ /Oase|Palmen|Irrem/ && !near(x, y, "o~", 40))
          fail("has no oasis near")
      }
      if (count < 10) fail("is the last of too few")
      exit failed
    }'
}

status=0
for region in arvenna skaldor sarrakh ostrakh; do
  check "$region" "rfdos._^" || status=1
done
check ancestors "_~" || status=1
exit $status

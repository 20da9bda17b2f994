#!/usr/bin/env bash
# tidy.sh: clang-tidy on all of src/ and tools/. A finding fails.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install.sh run test ci
cmake --preset dev >/dev/null
for tool in painter composer; do
  cmake -G Ninja -S "tools/$tool" -B "build/tidy/$tool" -DCMAKE_UNITY_BUILD=OFF \
    -DCMAKE_EXPORT_COMPILE_COMMANDS=ON >/dev/null
done
# The longest first, so that no core waits for the last one.
list() {
  git ls-files "$2/*.cpp" | xargs -d'\n' wc -c | grep -v ' total$' | sed "s|\$| $1|"
}
{ list build/dev src; list build/tidy/painter tools/painter; list build/tidy/composer tools/composer; } |
  sort -rn | awk '{ print $3, $2 }' |
  xargs -L1 -P"$(nproc)" clang-tidy --quiet -p

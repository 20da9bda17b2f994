#!/usr/bin/env bash
# house.sh: the checks of the sources that need no build.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install.sh ci
status=0
scripts/commit_titles.sh || status=1
scripts/unused.py || status=1
scripts/sizes.py || status=1
python3 scripts/page_lint.py src/cli/page || status=1
git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run --Werror || status=1
# A table made by a lambda, ::umask and a member called max are beyond cppcheck.
git ls-files 'src/*.cpp' 'tools/*.cpp' |
  xargs cppcheck --quiet --std=c++20 --language=c++ -j"$(nproc)" -Isrc -Itools/painter -Itools/composer \
    --enable=warning,performance,portability --inline-suppr --error-exitcode=1 \
    --suppress=missingIncludeSystem --suppress=unknownMacro --suppress=syntaxError:src/platform/Windows1252.h \
    --suppress=returnDanglingLifetime --suppress=ignoredReturnValue --template='{file}:{line}: {message} [{id}]' ||
  status=1
exit $status

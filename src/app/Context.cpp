#include "app/Context.h"

namespace {

ProgramPaths Paths(IniOps::Cache& cache, const Text& programFolder) {
  IniOps::Snapshot files(cache);
  return StartUp::ComposePaths(files, programFolder);
}

StartUp::Edition Edition(IniOps::Cache& cache, const ProgramPaths& paths) {
  IniOps::Snapshot files(cache);
  return StartUp::ReadEdition(files, paths);
}

}  // namespace

Context::Context(const Text& programFolder, Desktop& ofUser)
    : desktop(ofUser),
      paths(Paths(files, programFolder)),
      edition(Edition(files, paths)),
      language(paths.infoData),
      launching(paths, ofUser) {}

#pragma once

#include "app/World.h"
#include "auxwin/Launching.h"
#include "search/Search.h"

class Desktop;

/// What several windows need for as long as the program runs. Made in `main`, handed on by
/// reference.
struct Context {
  Context(World& opened, Desktop& ofUser)
      : world(opened), desktop(ofUser), launching(opened.paths, ofUser) {}

  World& world;
  Desktop& desktop;
  Search::State search;
  Launching launching;
};

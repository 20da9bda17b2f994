#pragma once

#include "app/World.h"
#include "auxwin/Launching.h"
#include "search/Search.h"

class Desktop;

/// Everything that lives as long as the program and that more than one window needs. Made once in
/// `main` and handed on by reference.
struct Context {
  Context(World& opened, Desktop& ofUser)
      : world(opened), desktop(ofUser), launching(opened.paths, ofUser) {}

  World& world;
  Desktop& desktop;
  Search::State search;
  Launching launching;
};

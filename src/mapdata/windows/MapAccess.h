#pragma once

/// What a screen reader sees of the map: a list whose items are the markers that are shown, with
/// name, description and an action that opens the information window. Name labels are left out.
namespace MapAccess {

/// Registers this with the toolkit; a second time does nothing.
void Install();

}  // namespace MapAccess

#include "app/AllTexts.h"

#include "app/MenuTable.h"
#include "auxwin/ExtrasTable.h"
#include "i18n/PageTexts.h"
#include "i18n/WindowTexts.h"
#include "perks/PerkCatalogue.h"
#include "perks/PerkTree.h"

std::vector<TextRow> AllTexts() {
  std::vector<TextRow> all(WindowTexts::Table.begin(), WindowTexts::Table.end());
  all.insert(all.end(), PageTexts::Table.begin(), PageTexts::Table.end());
  for (const Extra& extra : ExtrasTable)
    all.push_back(extra.name);
  for (const TextRow& heading : PerkTree::Headings())
    all.push_back(heading);
  for (const PerkCatalogue::Category& category : PerkCatalogue::Categories)
    all.push_back(category.caption);
  for (const PerkCatalogue::Perk& perk : PerkCatalogue::Perks)
    all.push_back(perk.caption);
  for (const TextRow& caption : MenuTable::Captions())
    all.push_back(caption);
  return all;
}

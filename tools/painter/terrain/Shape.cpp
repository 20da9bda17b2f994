#include "terrain/Shape.h"

#include <algorithm>

namespace Terrain {

namespace {

namespace Arvenna {
constexpr Point Mainland[] = {
    {140, -60}, {1100, -60}, {1100, 600}, {1010, 585}, {950, 620}, {890, 680}, {800, 700},
    {740, 735}, {660, 715},  {630, 650},  {560, 640},  {500, 690}, {420, 700}, {370, 640},
    {290, 630}, {250, 560},  {190, 540},  {120, 560},  {60, 500},  {105, 430}, {170, 395},
    {95, 350},  {50, 280},   {100, 215},  {165, 190},  {120, 140}, {80, 90},   {110, 30}};
constexpr Point WestIsle[] = {{45, 620}, {95, 590}, {150, 615}, {130, 650}, {70, 655}};
constexpr Point SouthIsle[] = {{540, 722}, {580, 700}, {610, 728}, {575, 748}};
constexpr Outline Land[] = {Mainland, WestIsle, SouthIsle};
constexpr Disc Lakes[] = {{{610, 330}, 40}, {{650, 350}, 30}, {{300, 300}, 26}, {{830, 560}, 24}};
constexpr Point North[] = {{260, 60}, {380, 105}, {500, 75}, {620, 110}, {760, 85}, {900, 50}};
constexpr Point East[] = {{900, 170}, {945, 280}, {900, 390}, {930, 470}};
constexpr Point Heart[] = {{390, 430}, {470, 390}, {540, 440}};
constexpr Disc Bogs[] = {{{165, 262}, 52}, {{196, 322}, 40}, {{165, 432}, 40}};
constexpr Range Ranges[] = {{North, 62, 0.95}, {East, 52, 0.8}, {Heart, 38, 0.5}};
}  // namespace Arvenna

namespace Skaldor {
constexpr Point Mainland[] = {
    {250, 830}, {215, 745}, {150, 715}, {165, 650}, {95, 610},  {120, 545}, {240, 575},
    {330, 560}, {230, 530}, {120, 500}, {60, 455},  {85, 395},  {200, 415}, {335, 455},
    {215, 375}, {110, 350}, {65, 290},  {130, 230}, {240, 270}, {345, 340}, {285, 230},
    {195, 180}, {200, 120}, {270, 85},  {335, 115}, {365, 250}, {395, 115}, {440, 60},
    {525, 50},  {560, 120}, {568, 280}, {600, 120}, {670, 60},  {770, 45},  {805, 110},
    {828, 225}, {850, 110}, {920, 70},  {1000, 90}, {1100, 60}, {1100, 830}};
constexpr Point NorthIsle[] = {{70, 120}, {115, 95}, {150, 135}, {115, 165}, {75, 160}};
constexpr Point WestIsle[] = {{30, 525}, {60, 515}, {70, 555}, {40, 565}};
constexpr Outline Land[] = {Mainland, NorthIsle, WestIsle};
constexpr Disc Lakes[] = {
    {{650, 500}, 34}, {{690, 515}, 28}, {{400, 640}, 28}, {{880, 430}, 24}, {{480, 300}, 16}};
constexpr Disc Ice[] = {{{650, 500}, 60}, {{690, 515}, 54}};
constexpr Point Spine[] = {{280, 490}, {410, 430}, {540, 390}, {690, 330}, {840, 310}, {980, 200}};
constexpr Point South[] = {{470, 720}, {600, 640}, {740, 660}, {880, 580}, {1000, 600}};
constexpr Point North[] = {{460, 140}, {480, 220}};
constexpr Point Cape[] = {{690, 140}, {730, 220}};
constexpr Range Ranges[] = {{Spine, 60, 1.0}, {South, 48, 0.8}, {North, 36, 0.75}, {Cape, 34, 0.7}};
}  // namespace Skaldor

namespace Sarrakh {
constexpr Point Mainland[] = {{-60, -60}, {640, -60}, {660, 20},  {730, 75},  {815, 70},
                              {865, 125}, {835, 195}, {775, 235}, {790, 305}, {860, 335},
                              {925, 400}, {965, 480}, {905, 540}, {865, 620}, {905, 690},
                              {860, 740}, {800, 725}, {730, 750}, {690, 830}, {420, 830},
                              {405, 750}, {350, 690}, {305, 735}, {285, 830}, {-60, 830}};
constexpr Point EastIsle[] = {{925, 215}, {970, 195}, {995, 240}, {960, 285}, {920, 265}};
constexpr Point SouthIsle[] = {{960, 640}, {990, 630}, {1000, 670}, {965, 680}};
constexpr Outline Land[] = {Mainland, EastIsle, SouthIsle};
constexpr Disc Lakes[] = {{{250, 215}, 15}, {{492, 340}, 20}, {{158, 462}, 13},
                          {{640, 560}, 16}, {{430, 590}, 14}, {{690, 150}, 12}};
constexpr Disc Oases[] = {{{250, 215}, 46}, {{492, 340}, 60}, {{158, 462}, 42},
                          {{640, 560}, 52}, {{430, 590}, 44}, {{690, 150}, 42},
                          {{345, 470}, 26}, {{820, 460}, 34}, {{80, 290}, 28}};
constexpr Point North[] = {{60, 70}, {180, 60}, {310, 105}, {430, 80}, {540, 50}};
constexpr Point East[] = {{590, 240}, {665, 320}, {640, 420}, {710, 470}};
constexpr Point South[] = {{50, 620}, {160, 660}, {200, 720}};
constexpr Point Reef[] = {{540, 690}, {620, 670}};
constexpr Range Ranges[] = {{North, 50, 0.9}, {East, 44, 0.75}, {South, 44, 0.7}, {Reef, 26, 0.5}};
}  // namespace Sarrakh

namespace Ostrakh {
constexpr Point Mainland[] = {
    {165, 250}, {215, 160}, {320, 140}, {380, 75},  {490, 100}, {570, 70},  {690, 105},
    {780, 95},  {860, 160}, {840, 250}, {910, 310}, {950, 410}, {890, 480}, {900, 580},
    {810, 650}, {715, 625}, {650, 700}, {545, 715}, {470, 650}, {385, 690}, {290, 650},
    {270, 565}, {190, 535}, {130, 450}, {190, 375}, {130, 320}};
constexpr Point WestRock[] = {{60, 400}, {85, 385}, {95, 415}, {70, 430}};
constexpr Point SouthRock[] = {{760, 700}, {800, 690}, {815, 720}, {770, 730}};
constexpr Point NorthRock[] = {{90, 120}, {125, 100}, {140, 135}, {105, 150}};
constexpr Outline Land[] = {Mainland, WestRock, SouthRock, NorthRock};
constexpr Disc Lakes[] = {{{640, 270}, 22}, {{360, 520}, 20}};
constexpr Point Rim[] = {{270, 300}, {300, 210}, {420, 170}, {560, 150}, {720, 170}, {790, 260}};
constexpr Point South[] = {{330, 600}, {430, 590}, {520, 620}};
constexpr Point East[] = {{850, 380}, {820, 500}, {760, 570}};
constexpr Range Ranges[] = {{Rim, 50, 0.8}, {South, 36, 0.55}, {East, 40, 0.65}};
constexpr Hall Ruins[] = {
    {455, 330, 150, 100, Hall::Form::Square}, {500, 300, 60, 40, Hall::Form::Square},
    {300, 400, 60, 46, Hall::Form::Square},   {690, 400, 64, 64, Hall::Form::Round},
    {600, 530, 70, 44, Hall::Form::Square},   {230, 450, 44, 44, Hall::Form::Round},
    {420, 480, 40, 40, Hall::Form::Octagon}};
constexpr Passage Streets[] = {
    {{360, 423}, {455, 390}, 6}, {{605, 390}, {690, 430}, 6}, {{560, 430}, {630, 530}, 6}};
}  // namespace Ostrakh

namespace Ancestors {
using enum Hall::Form;
constexpr Hall Halls[] = {
    {412, 284, 200, 200, Octagon}, {432, 44, 160, 120, Square},  {452, 600, 120, 130, Square},
    {60, 60, 170, 110, Square},    {270, 70, 110, 80, Square},   {644, 70, 110, 80, Square},
    {800, 70, 160, 120, Square},   {50, 230, 120, 120, Round},   {220, 230, 130, 100, Square},
    {680, 230, 120, 100, Square},  {860, 250, 120, 120, Round},  {40, 420, 150, 110, Square},
    {240, 400, 110, 120, Square},  {676, 400, 120, 110, Square}, {850, 440, 130, 110, Square},
    {70, 600, 140, 120, Octagon},  {270, 600, 120, 110, Square}, {640, 600, 110, 110, Square},
    {806, 610, 160, 110, Square}};
constexpr Passage Passages[] = {
    {{512, 164}, {512, 290}, 34}, {{512, 480}, {512, 604}, 34}, {{230, 110}, {272, 110}, 18},
    {{380, 104}, {434, 104}, 18}, {{590, 104}, {646, 104}, 18}, {{754, 110}, {802, 110}, 18},
    {{145, 168}, {145, 200}, 16}, {{110, 200}, {145, 200}, 16}, {{110, 200}, {110, 236}, 16},
    {{168, 290}, {222, 290}, 18}, {{325, 148}, {325, 232}, 18}, {{700, 148}, {700, 232}, 18},
    {{880, 188}, {880, 222}, 16}, {{880, 222}, {920, 222}, 16}, {{920, 222}, {920, 256}, 16},
    {{798, 300}, {866, 300}, 18}, {{348, 350}, {416, 350}, 20}, {{348, 320}, {348, 352}, 20},
    {{610, 350}, {690, 350}, 20}, {{690, 326}, {690, 352}, 20}, {{348, 430}, {418, 430}, 20},
    {{608, 430}, {680, 430}, 20}, {{110, 348}, {110, 424}, 16}, {{188, 470}, {242, 470}, 18},
    {{794, 470}, {852, 470}, 18}, {{920, 368}, {920, 442}, 16}, {{120, 528}, {120, 606}, 18},
    {{295, 518}, {295, 604}, 18}, {{700, 508}, {700, 604}, 18}, {{900, 548}, {900, 612}, 18},
    {{206, 660}, {272, 660}, 18}, {{388, 660}, {454, 660}, 18}, {{570, 660}, {642, 660}, 18},
    {{748, 660}, {808, 660}, 18}, {{276, 328}, {276, 402}, 30}, {{747, 328}, {747, 402}, 30}};
constexpr Disc Pools[] = {{{110, 290}, 24}, {{920, 310}, 24}, {{140, 660}, 22}};
}  // namespace Ancestors

constexpr Shape Regions[] = {{"arvenna",
                              1207,
                              Climate::Temperate,
                              Arvenna::Land,
                              Arvenna::Lakes,
                              Arvenna::Ranges,
                              {},
                              {},
                              {},
                              0.42,
                              2600,
                              {},
                              Arvenna::Bogs},
                             {"skaldor",
                              4421,
                              Climate::Arctic,
                              Skaldor::Land,
                              Skaldor::Lakes,
                              Skaldor::Ranges,
                              {},
                              {},
                              {},
                              0.40,
                              3200,
                              Skaldor::Ice},
                             {"sarrakh",
                              7103,
                              Climate::Desert,
                              Sarrakh::Land,
                              Sarrakh::Lakes,
                              Sarrakh::Ranges,
                              Sarrakh::Oases,
                              {},
                              {},
                              0.0,
                              24000},
                             {"ostrakh",
                              9319,
                              Climate::Barren,
                              Ostrakh::Land,
                              Ostrakh::Lakes,
                              Ostrakh::Ranges,
                              {},
                              Ostrakh::Ruins,
                              Ostrakh::Streets,
                              0.10,
                              7000},
                             {"ancestors",
                              5531,
                              Climate::Underground,
                              {},
                              Ancestors::Pools,
                              {},
                              {},
                              Ancestors::Halls,
                              Ancestors::Passages,
                              0.0,
                              0.0}};

}  // namespace

std::span<const Shape> Shapes() {
  return Regions;
}

const Shape* FindShape(std::string_view name) {
  const auto found = std::ranges::find(Regions, name, &Shape::name);
  return found == std::end(Regions) ? nullptr : &*found;
}

}  // namespace Terrain

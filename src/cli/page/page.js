/* global L */
'use strict';

// README.md tells what the page reads. x and y count in a frame over the region's picture.

const FrameWidth = 1024;
const FrameHeight = 768;
const FrameBounds = [[-FrameHeight, 0], [0, FrameWidth]];
const MarkersAtMost = 300;
const CellSize = 44;
const TouchRadius = 22;
const HoverRadius = 13;
const RowsAtOnce = 60;

const ui = Object.fromEntries([...document.querySelectorAll('[id]')].map((each) => [each.id, each]));
const world = JSON.parse(ui.world.textContent);
const words = world.words;
const on = (target, type, act) => target.addEventListener(type, act);
const say = (text) => { ui.message.textContent = text; };

function fill(word, ...values) {
  return values.reduce((text, value) => text.replace('%s', () => value), words[word]);
}

function make(tag, properties, ...children) {
  const made = Object.assign(document.createElement(tag), properties);
  made.append(...children);
  return made;
}

// ---- What the world holds

for (const region of world.regions) {
  for (const category of region.categories) {
    category.region = region;
    for (const entity of category.entities) {
      entity.category = category;
      // An entity that several categories share is found in all of them at once.
      entity.tick = [region.key, entity.home || category.section, entity.key].join('|');
    }
  }
}

let region = null;      // whose tab is shown
let visible = [];       // the entities of the chosen categories, each tick once
let current = null;     // where the keys on the map stand
let opened = null;      // whose description is open

const chosenCategories = () => region.categories.filter(({chosen}) => chosen);
const collator = new Intl.Collator(world.language || undefined, {numeric: true});

function* allEntities() {
  for (const each of world.regions)
    for (const category of each.categories)
      yield* category.entities;
}

function once(entities) {
  const ticks = new Set();
  return entities.filter(({tick}) => !ticks.has(tick) && ticks.add(tick));
}

// ---- What the browser keeps

const TicksKey = `${world.title}: found`;
const ViewKey = `${world.title}: view`;
let found = new Set();
let view = {names: false, chosen: {}};
let stored = true;

function recall(key) {
  try {
    return localStorage.getItem(key);
  } catch {
    stored = false;
    return null;
  }
}

function keep(key, text) {
  try {
    localStorage.setItem(key, text);
    stored = true;
  } catch {
    stored = false;
  }
}

const ticksAsText = () => [...found].sort().join('\n');

function ticksFromText(text) {
  const lines = text.split(/[\r\n]+/).filter((line) => line.trim());
  const ticks = lines.filter((line) => line.split('|').length > 2);
  return {ticks, strange: lines.length - ticks.length};
}

function recallAll() {
  found = new Set(ticksFromText(recall(TicksKey) || '').ticks);
  try {
    const kept = JSON.parse(recall(ViewKey));
    view = {names: kept.names === true, chosen: Object(kept.chosen)};
  } catch {
    // Nothing was kept yet, or another page wrote it.
  }
}

function keepTicks() {
  keep(TicksKey, ticksAsText());
  if (!stored)
    say(words.noStorage);
  refreshTicks();
}

function setFound(entity, isFound) {
  if (isFound)
    found.add(entity.tick);
  else
    found.delete(entity.tick);
  keepTicks();
}

// ---- The map

const motion = {animate: !matchMedia('(prefers-reduced-motion: reduce)').matches};
const map = L.map('map', {
  crs: L.CRS.Simple, attributionControl: false, keyboard: false, tap: false,
  zoomControl: false, zoomSnap: 0, zoomDelta: 0.5,
  maxBounds: L.latLngBounds(FrameBounds).pad(0.75), maxBoundsViscosity: 1,
  zoomAnimation: motion.animate, inertia: motion.animate, fadeAnimation: false,
});
L.control.zoom({zoomInTitle: words.zoomIn, zoomOutTitle: words.zoomOut}).addTo(map);
// The keys + and - do the same: the map is one stop for Tab.
for (const button of ui.map.querySelectorAll('.leaflet-control-zoom a'))
  button.tabIndex = -1;

const drawn = new Map();  // entity, or the cell of a crowd -> its marker on the map
let picture = null;

const placeOf = ({x, y}) => L.latLng(-y, x);
const isPlaced = ({x}) => x !== undefined;

/** Shows the whole picture, the farthest that one can step back. */
function fitMap() {
  map.setMinZoom(-10).setMaxZoom(10);
  const whole = map.getBoundsZoom(FrameBounds);
  map.setView([-FrameHeight / 2, FrameWidth / 2], whole, {animate: false});
  map.setMinZoom(whole).setMaxZoom(whole + 4);
}

/** Hands over a picture's address once the page has been read that far; it is not decoded before. */
function whenPicture(number, use) {
  const source = document.getElementById(`picture-${number}`);
  const read = document.readyState !== 'loading';
  if (source && (read || source.nextElementSibling))
    use(source.textContent.trim());
  else if (read)
    use('');
  else
    setTimeout(whenPicture, 10, number, use);
}

function showPicture() {
  const shown = region;
  picture?.remove();
  ui.noPicture.hidden = true;
  const without = () => {
    if (region !== shown)
      return;
    ui.noPicture.hidden = false;
    picture?.remove();
    picture = L.rectangle(FrameBounds, {className: 'frame', interactive: false}).addTo(map);
    picture.getElement().closest('svg').ariaHidden = 'true';
  };
  if (shown.picture === undefined)
    return without();
  whenPicture(shown.picture, (address) => {
    if (region === shown)
      picture = L.imageOverlay(address, FrameBounds).on('error', without).addTo(map);
  });
}

/** What is to be drawn: every entity in view, or crowds of them where they are too many. */
function markersInView() {
  const bounds = map.getBounds().pad(0.1);
  const [west, east] = [bounds.getWest(), bounds.getEast()];
  const [top, bottom] = [-bounds.getNorth(), -bounds.getSouth()];
  const inView = visible.filter(({x, y}) => x >= west && x <= east && y >= top && y <= bottom);
  const cell = inView.length > MarkersAtMost && CellSize / map.getZoomScale(map.getZoom(), 0);
  const crowds = new Map();
  for (const entity of inView) {
    const key = cell ? `${Math.floor(entity.x / cell)},${Math.floor(entity.y / cell)}` : entity;
    const crowd = crowds.get(key) || {entity, count: 0, x: 0, y: 0};
    crowd.count += 1;
    crowd.x += (entity.x - crowd.x) / crowd.count;
    crowd.y += (entity.y - crowd.y) / crowd.count;
    crowds.set(key, crowd);
  }
  const markers = new Map([...crowds].map(([key, crowd]) =>
    [crowd.count > 1 ? `${key} ${crowd.count} ${cell}` : crowd.entity, crowd]));
  if (visible.includes(current) && isPlaced(current))
    markers.set(current, {...current, entity: current, count: 1});
  return markers;
}

function makeMarker({entity, count, x, y}) {
  const crowd = count > 1;
  const icon = L.divIcon({
    className: crowd ? 'crowd' : `marker${entity.mark ? ' mark' : ''}`,
    html: make('span', {className: 'name', textContent: crowd ? count : entity.name, ariaHidden: 'true'}),
    iconSize: crowd ? [32, 32] : [16, 16],
  });
  const marker = L.marker([-y, x], {icon, interactive: false, keyboard: false}).addTo(map);
  const shown = marker.getElement();
  if (!crowd) {
    Object.assign(shown, {role: 'button', tabIndex: -1});
    on(shown, 'focus', () => setCurrent(entity));
    on(shown, 'click', (event) => {
      event.stopPropagation();
      openEntity(entity);
    });
  }
  return Object.assign(marker, {entity, crowd, shown});
}

const single = () => [...drawn.values()].filter(({crowd}) => !crowd);

function drawMarkers() {
  const wanted = markersInView();
  for (const [key, marker] of drawn) {
    if (!wanted.has(key)) {
      marker.remove();
      drawn.delete(key);
    }
  }
  for (const [key, item] of wanted) {
    if (!drawn.has(key))
      drawn.set(key, makeMarker(item));
  }
  placeNames();
  markFound();
  setTabStop();
}

function markFound() {
  for (const {entity, shown} of single()) {
    const isFound = found.has(entity.tick);
    shown.classList.toggle('found', isFound);
    shown.classList.toggle('opened', entity.tick === opened?.tick);
    shown.ariaLabel = isFound ? `${entity.name}, ${words.found}` : entity.name;
  }
}

/** The one element of the map that Tab reaches: the current marker, else the first, else the map. */
function setTabStop() {
  const markers = single();
  const stop = markers.find(({entity}) => entity === current) || markers[0];
  for (const marker of markers)
    marker.shown.tabIndex = marker === stop ? 0 : -1;
  ui.map.tabIndex = stop ? -1 : 0;
}

const pen = document.createElement('canvas').getContext('2d');
pen.font = getComputedStyle(document.documentElement).getPropertyValue('--name-font');
// Where a name begins: in widths of it and in pixels from the middle of its marker.
const NameSides = {right: [0, 11, -11], left: [-1, -11, -11], below: [-0.5, 0, 11], above: [-0.5, 0, -33]};

/** Puts each name on a side where it covers no other name; one that finds none waits for a hover. */
function placeNames() {
  const right = map.getSize().x;
  const names = [];
  const meets = (taken, [x, y, width, height]) => taken.some(([left, top, wide, high]) =>
    x < left + wide && left < x + width && y < top + high && top < y + height);
  const markers = single().map(({entity, shown}) =>
    ({entity, shown, at: map.latLngToContainerPoint(placeOf(entity))}));
  const dots = markers.map(({at}) => [at.x - 7, at.y - 7, 14, 14]);
  for (const {entity, shown, at} of markers) {
    const width = Math.min(260, (entity.nameWidth ??= pen.measureText(entity.name).width + 12));
    const box = (side) => {
      const [widths, x, y] = NameSides[side];
      return [at.x + widths * width + x, at.y + y, width, 22];
    };
    const inside = Object.keys(NameSides).filter((side) =>
      box(side)[0] >= 0 && box(side)[0] + width <= right);
    const free = view.names ? inside.filter((side) => !meets(names, box(side))) : [];
    const best = free.find((side) => !meets(dots, box(side))) || free[0];
    if (best)
      names.push(box(best));
    shown.dataset.side = best || inside[0] || 'right';
    shown.classList.toggle('named', Boolean(best));
  }
}

function nearestMarker(point, radius) {
  let nearest = null;
  let best = radius;
  for (const marker of drawn.values()) {
    const away = point.distanceTo(map.latLngToContainerPoint(marker.getLatLng()));
    if (away <= best)
      [nearest, best] = [marker, away];
  }
  return nearest;
}

function hover(point) {
  const over = point && nearestMarker(point, HoverRadius);
  for (const marker of drawn.values())
    marker.shown.classList.toggle('hovered', marker === over);
  ui.map.classList.toggle('over', Boolean(over));
}

function pickAt(point) {
  const marker = nearestMarker(point, TouchRadius);
  if (!marker)
    closeEntity();
  else if (marker.crowd && map.getZoom() < map.getMaxZoom())
    map.setView(marker.getLatLng(), map.getZoom() + 1.5);
  else
    openEntity(marker.entity);
}

function setCurrent(entity) {
  current = entity;
  for (const row of ui.list.children) {
    if (row.classList.toggle('current', row.entity.tick === entity.tick))
      row.scrollIntoView({block: 'nearest'});
  }
  setTabStop();
}

/** Shows the entity beside an open description; one that was chosen elsewhere, in the middle. */
function bringIntoView(entity, centred) {
  if (!isPlaced(entity))
    return;
  const box = ui.map.getBoundingClientRect();
  const panel = ui.entity.getBoundingClientRect();
  const covered = panel.width < box.width ? [Math.max(0, box.right - panel.left), 0]
    : [0, box.bottom - panel.top];
  if (centred) {
    const zoom = Math.max(map.getZoom(), map.getMinZoom() + 1);
    const middle = map.project(placeOf(entity), zoom).add([covered[0] / 2, covered[1] / 2]);
    map.setView(map.unproject(middle, zoom), zoom, motion);
  } else {
    map.panInside(placeOf(entity), {paddingTopLeft: [40, 40],
      paddingBottomRight: [40 + covered[0], 40 + covered[1]], ...motion});
  }
}

function focusMarker(entity) {
  setCurrent(entity);
  map.panInside(placeOf(entity), {padding: [40, 40], animate: false});
  drawMarkers();
  drawn.get(entity)?.shown.focus({preventScroll: true});
}

/** The nearest entity within 45 degrees of a direction, else the nearest on that side. */
function nextMarker(from, across, down) {
  let best = null;
  visible.forEach((entity) => {
    const ahead = (entity.x - from.x) * across + (entity.y - from.y) * down;
    const aside = Math.abs((entity.x - from.x) * down) + Math.abs((entity.y - from.y) * across);
    const away = Math.hypot(ahead, aside) + (aside > ahead ? 2 * FrameWidth : 0);
    if (ahead > 0 && (!best || away < best.away))
      best = {entity, away};
  });
  return best?.entity;
}

const Arrows = {ArrowLeft: [-1, 0], ArrowRight: [1, 0], ArrowUp: [0, -1], ArrowDown: [0, 1]};

function walk(key) {
  const placed = visible.filter(isPlaced);
  const here = placed.indexOf(current);
  const steps = {Home: 0, End: placed.length - 1, PageUp: here - 1, PageDown: here + 1};
  const next = here < 0 ? placed[0]
    : key in steps ? placed[steps[key]] : nextMarker(current, ...Arrows[key]);
  if (next)
    focusMarker(next);
}

function mapKey(event) {
  const key = event.key;
  if (event.ctrlKey || event.altKey || event.metaKey)
    return;
  if (key in Arrows && event.shiftKey)
    map.panBy(Arrows[key].map((way) => way * 100), motion);
  else if (key in Arrows || ['Home', 'End', 'PageUp', 'PageDown'].includes(key))
    walk(key);
  else if (key === '+' || key === '-')
    map.setZoom(map.getZoom() + (key === '+' ? 0.5 : -0.5));
  else if (key === '0')
    fitMap();
  else if (key === 'Enter' && visible.includes(current))
    openEntity(current);
  else if (key === ' ' && visible.includes(current))
    setFound(current, !found.has(current.tick));
  else
    return;
  event.preventDefault();
}

// ---- The list

let rows = [];    // the entities that the list holds, however far it has been filled
let sought = '';

function fillList() {
  sought = ui.search.value.trim();
  rows = sought ? search(sought) : visible;
  // An empty list is at its top, and asking it would lay out the page.
  if (ui.list.firstChild)
    ui.list.scrollTop = 0;
  ui.list.replaceChildren();
  addRows(RowsAtOnce);
  setStop(ui.list, ui.list.querySelector('input'));
  refreshTicks();
}

/** What a row says below the name, where the name alone says too little. */
function noteOf(entity) {
  if (!sought)
    return chosenCategories().length > 1 ? entity.category.caption : '';
  const terms = fold(sought).split(/\s+/);
  return terms.every((term) => entity.foldedName.includes(term))
    ? placeText(entity) : excerpt(entity, terms);
}

function makeRow(entity, index) {
  const tick = make('input', {type: 'checkbox', tabIndex: -1, checked: found.has(entity.tick)});
  tick.ariaLabel = `${words.found}: ${entity.name}`;
  const row = make('li', {entity}, make('label', {className: 'tick'}, tick),
    make('button', {tabIndex: -1},
      make('span', {className: 'entity', textContent: entity.name}),
      make('small', {textContent: noteOf(entity)})));
  Object.assign(row, {ariaSetSize: rows.length, ariaPosInSet: index + 1});
  row.classList.toggle('current', entity.tick === current?.tick);
  return row;
}

function addRows(end) {
  const start = ui.list.children.length;
  ui.list.append(...rows.slice(start, end).map((entity, index) => makeRow(entity, start + index)));
}

// ---- Categories

function chooseCategory(category, chosen) {
  category.chosen = chosen;
  view.chosen[region.key] = chosenCategories().map(({section}) => section);
  keep(ViewKey, JSON.stringify(view));
  refresh();
}

/** What was chosen last time; the first time, the first category that has something to show. */
function recallCategories() {
  const first = region.categories.find(({entities}) => entities.length);
  const chosen = view.chosen[region.key] || (first ? [first.section] : []);
  for (const category of region.categories)
    category.chosen = chosen.includes(category.section);
}

function fillCategories() {
  const groups = new Map();
  for (const category of region.categories) {
    if (!groups.has(category.group))
      groups.set(category.group, []);
    groups.get(category.group).push(category);
  }
  ui.groups.replaceChildren(...[...groups].map(([caption, categories]) =>
    make('details', {open: groups.size < 2 || categories.length < 25},
      make('summary', {textContent: caption}), ...categories.map(makeCategory))));
  setStop(ui.groups, ui.groups.querySelector('summary'));
}

function makeCategory(category) {
  category.box = make('input', {type: 'checkbox', checked: category.chosen});
  on(category.box, 'change', () => chooseCategory(category, category.box.checked));
  category.count = make('span', {className: 'count'});
  return make('label', {className: 'category'}, category.box,
    make('span', {className: 'caption', textContent: category.caption}), ' ', category.count);
}

// ---- What a change shows

function refresh() {
  visible = once(chosenCategories().flatMap(({entities}) => entities))
    .sort((one, other) => collator.compare(one.name, other.name));
  for (const category of region.categories)
    category.box.checked = category.chosen;
  drawMarkers();
  fillList();
}

function refreshTicks() {
  markFound();
  for (const row of ui.list.children)
    row.querySelector('input').checked = found.has(row.entity.tick);
  for (const {entities, count} of region.categories) {
    const done = entities.filter(({tick}) => found.has(tick)).length;
    count.textContent = done ? `${done}/${entities.length}` : entities.length;
    count.parentNode.classList.toggle('done', done > 0 && done === entities.length);
  }
  const done = rows.filter(({tick}) => found.has(tick)).length;
  const captions = chosenCategories().map(({caption}) => caption).join(', ');
  ui.listTitle.textContent = sought ? fill('hits', rows.length)
    : `${captions}: ${fill('foundOf', done, rows.length)}`;
  if (opened)
    ui.entityFound.checked = found.has(opened.tick);
}

function showRegion(next) {
  if (next === region)
    return;
  region = next;
  current = null;
  closeEntity();
  const shown = world.regions.indexOf(region);
  [...ui.regions.children].forEach((tab, index) => { tab.ariaSelected = index === shown; });
  setStop(ui.regions, ui.regions.children[shown]);
  ui.parts.setAttribute('aria-labelledby', `tab-${shown}`);
  ui.map.ariaLabel = fill('mapOf', region.caption);
  recallCategories();
  fillCategories();
  visible = [];
  fitMap();
  ui.regions.children[shown].scrollIntoView({block: 'nearest', inline: 'nearest'});
  showPicture();
  refresh();
}

// ---- Search

const Letters = {ß: 'ss', æ: 'ae', œ: 'oe', ø: 'o', ð: 'd', þ: 'th', '’': '\'', '‘': '\''};

/** Text as the search compares it: no accents, no case, no invisible marks. */
function fold(text) {
  return text.normalize('NFD').replace(/[\p{M}\p{Cf}]/gu, '').toLowerCase()
    .replace(/[ßæœøðþ’‘]/g, (letter) => Letters[letter]);
}

/** Names that begin with what was typed, other names, then descriptions. */
function search(typed) {
  const terms = fold(typed).split(/\s+/);
  const hits = [[], [], []];
  for (const entity of allEntities()) {
    const name = (entity.foldedName ??= fold(entity.name));
    const text = (entity.foldedText ??= fold(entity.text || ''));
    if (terms.every((term) => name.includes(term)))
      hits[name.startsWith(terms[0]) ? 0 : 1].push(entity);
    else if (terms.every((term) => name.includes(term) || text.includes(term)))
      hits[2].push(entity);
  }
  return once(hits.flat());
}

const placeText = ({category}) => `${category.region.caption}: ${category.caption}`;

/** The part of a text around a term; folding moved the term by a letter or two at most. */
function excerpt({text, foldedText}, terms) {
  const from = Math.max(0, Math.max(...terms.map((term) => foldedText.indexOf(term))) - 35);
  return `${from ? '…' : ''}${text.slice(from, from + 90)}…`;
}

// ---- One entity

let opener = null;

function linkOf({key, category}) {
  return '#' + [category.region.key, category.section, key].map(encodeURIComponent).join('/');
}

function setAddress(link) {
  try {
    history.replaceState(null, '', link);
  } catch {
    // A page inside another may not change its address.
  }
}

function openEntity(entity, centred = false) {
  opener = document.activeElement;
  opened = entity;
  say('');
  showPart('');
  ui.entityName.textContent = entity.name;
  ui.entityPlace.textContent = placeText(entity);
  ui.entityText.textContent = entity.text || words.noText;
  ui.entityLink.href = linkOf(entity);
  ui.portrait.hidden = entity.portrait === undefined;
  ui.portrait.removeAttribute('src');
  if (entity.portrait !== undefined) {
    whenPicture(entity.portrait, (address) => {
      if (opened === entity)
        ui.portrait.src = address;
    });
  }
  ui.entity.hidden = false;
  ui.entity.scrollTop = 0;
  setAddress(linkOf(entity));
  setCurrent(visible.find(({tick}) => tick === entity.tick));
  refreshTicks();
  bringIntoView(entity, centred);
  drawMarkers();
  ui.entityName.focus({preventScroll: true});
}

function closeEntity() {
  if (!opened)
    return;
  const marker = drawn.get(current);
  const inside = ui.entity.contains(document.activeElement);
  ui.entity.hidden = true;
  opened = null;
  setAddress(`#${encodeURIComponent(region.key)}`);
  if (inside)
    (opener?.isConnected && opener.offsetParent ? opener : marker?.shown)?.focus();
  markFound();
}

/** Opens an entity wherever it is: its region, its category, its place on the map. */
function goTo(entity) {
  showRegion(entity.category.region);
  if (!visible.some(({tick}) => tick === entity.tick))
    chooseCategory(entity.category, true);
  openEntity(entity, true);
}

function followLink() {
  let parts = [];
  try {
    parts = location.hash.slice(1).split('/').map(decodeURIComponent);
  } catch {
    parts = ['', location.hash];
  }
  const [regionKey, section, key] = parts;
  const wanted = world.regions.find((each) => each.key === regionKey);
  const entity = wanted?.categories.find((each) => each.section === section)
    ?.entities.find((each) => each.key === key);
  if (wanted || !region)
    showRegion(wanted || world.regions[0]);
  if (entity)
    goTo(entity);
  else if (parts.length > 1 || (regionKey && !wanted))
    say(fill('gone', parts[parts.length - 1]));
}

// ---- Ticks as a text

function openTicks() {
  ui.ticksText.value = ticksAsText();
  ui.ticksState.textContent = stored ? '' : words.noStorage;
  ui.ticksDialog.showModal();
}

function takeTicks() {
  const {ticks, strange} = ticksFromText(ui.ticksText.value);
  const before = found.size;
  ticks.forEach((tick) => found.add(tick));
  keepTicks();
  ui.ticksState.textContent = fill('taken', found.size - before, strange);
}

function removeTicks() {
  ui.ticksText.value = ticksAsText();
  found.clear();
  keepTicks();
  ui.ticksState.textContent = words.removed;
}

function copyTicks() {
  ui.ticksText.select();
  document.execCommand('copy');
  ui.ticksState.textContent = words.copied;
}

// ---- Keys, parts of a small screen, paper

const Stops = {regions: '[role=tab]', groups: 'summary, input', list: 'input, button'};
const StopHome = '[role=tab], summary, .category, li';

/** One stop for Tab in a part, in the list two; the arrow keys move it. */
function setStop(part, stop) {
  const home = stop?.closest(StopHome);
  for (const item of part.querySelectorAll(Stops[part.id]))
    item.tabIndex = item.closest(StopHome) === home ? 0 : -1;
}

function rove(part, before, after) {
  on(part, 'focusin', ({target}) => setStop(part, target));
  on(part, 'keydown', (event) => {
    const {key, target} = event;
    const items = [...part.querySelectorAll(Stops[part.id])].filter((item) =>
      item.offsetParent && (part !== ui.list || item.localName === target.localName));
    const here = items.indexOf(target);
    const next = items[{[before]: here - 1, [after]: here + 1, Home: 0, End: items.length - 1}[key]];
    if (here < 0 || !next)
      return;
    event.preventDefault();
    next.focus();
  });
}

function showPart(part) {
  document.body.dataset.part = part;
  for (const button of ui.bar.children)
    button.ariaExpanded = button.dataset.part === part;
}

function preparePaper() {
  addRows(rows.length);
  Object.assign(ui.map.style, {width: '690px', height: '518px'});
  map.invalidateSize(false);
  rows.forEach((entity, index) => drawn.get(entity)?.shown.setAttribute('data-number', index + 1));
}

function leavePaper() {
  Object.assign(ui.map.style, {width: '', height: ''});
  map.invalidateSize(false);
}

function fillWords() {
  for (const each of document.querySelectorAll('[data-word]'))
    each.textContent = words[each.dataset.word];
  for (const each of document.querySelectorAll('[data-label]'))
    each.ariaLabel = words[each.dataset.label];
  for (const each of document.querySelectorAll('[data-placeholder]'))
    each.placeholder = words[each.dataset.placeholder];
}

function fillTabs() {
  world.regions.forEach((each, index) => {
    const tab = make('button', {id: `tab-${index}`, role: 'tab', textContent: each.caption});
    tab.setAttribute('aria-controls', 'parts');
    on(tab, 'click', () => showRegion(each));
    on(tab, 'focus', () => showRegion(each));
    ui.regions.append(tab);
  });
}

function listenToMap() {
  map.on('moveend', drawMarkers);
  map.on('resize', fitMap);
  map.on('click', ({containerPoint}) => pickAt(containerPoint));
  map.on('mousemove', ({containerPoint}) => hover(containerPoint));
  map.on('mouseout', () => hover(null));
  on(ui.map, 'keydown', mapKey);
  new ResizeObserver(() => map.invalidateSize(false)).observe(ui.map);
}

function listenToList() {
  const {list} = ui;
  let waiting = 0;
  on(ui.search, 'input', () => {
    clearTimeout(waiting);
    waiting = setTimeout(fillList, 120);
  });
  on(ui.search, 'keydown', (event) => {
    if (event.key === 'ArrowDown')
      list.querySelector('button')?.focus();
  });
  on(list, 'scroll', () => {
    if (list.scrollTop + 2 * list.clientHeight > list.scrollHeight)
      addRows(list.children.length + RowsAtOnce);
  });
  on(list, 'change', (event) =>
    setFound(event.target.closest('li').entity, event.target.checked));
  on(list, 'click', (event) => {
    if (event.target.closest('button'))
      goTo(event.target.closest('li').entity);
  });
}

function listenToParts() {
  ui.names.checked = view.names;
  on(ui.names, 'change', () => {
    view.names = ui.names.checked;
    keep(ViewKey, JSON.stringify(view));
    placeNames();
  });
  on(ui.none, 'click', () => {
    region.categories.forEach((category) => { category.chosen = false; });
    chooseCategory(region.categories[0] || {}, false);
  });
  on(ui.close, 'click', closeEntity);
  on(ui.entityFound, 'change', () =>
    setFound(opened, ui.entityFound.checked));
  on(ui.entityLink, 'click', () =>
    navigator.clipboard?.writeText(ui.entityLink.href)
      .then(() => say(words.copied), () => {}));
  for (const button of ui.bar.children) {
    on(button, 'click', () => {
      closeEntity();
      showPart(document.body.dataset.part === button.dataset.part ? '' : button.dataset.part);
    });
  }
  on(document, 'keydown', (event) => {
    if (event.key !== 'Escape' || ui.ticksDialog.open)
      return;
    if (opened)
      closeEntity();
    else
      showPart('');
  });
}

function listenToTicks() {
  on(ui.ticks, 'click', openTicks);
  on(ui.ticksCopy, 'click', copyTicks);
  on(ui.ticksTake, 'click', takeTicks);
  on(ui.ticksRemove, 'click', removeTicks);
  on(ui.ticksClose, 'click', () => ui.ticksDialog.close());
  on(window, 'storage', (event) => {
    if (event.key === TicksKey) {
      found = new Set(ticksFromText(event.newValue || '').ticks);
      refreshTicks();
    }
  });
}

fillWords();
fillTabs();
recallAll();
rove(ui.regions, 'ArrowLeft', 'ArrowRight');
rove(ui.groups, 'ArrowUp', 'ArrowDown');
rove(ui.list, 'ArrowUp', 'ArrowDown');
listenToMap();
listenToList();
listenToParts();
listenToTicks();
followLink();
if (!stored)
  say(words.noStorage);
on(window, 'hashchange', followLink);
on(window, 'beforeprint', preparePaper);
on(window, 'afterprint', leavePaper);

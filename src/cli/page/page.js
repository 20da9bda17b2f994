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
const RowsAtOnce = 100;
const PrintWidth = 690;

const world = JSON.parse(document.getElementById('world').textContent);
const words = world.words;
const element = (id) => document.getElementById(id);
const say = (text) => { element('message').textContent = text; };

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

const keepView = () => keep(ViewKey, JSON.stringify(view));

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

const calm = matchMedia('(prefers-reduced-motion: reduce)').matches;
const map = L.map('map', {
  crs: L.CRS.Simple, attributionControl: false, keyboard: false, tap: false,
  zoomControl: false, zoomSnap: 0, zoomDelta: 0.5, maxBoundsViscosity: 1,
  zoomAnimation: !calm, fadeAnimation: false, inertia: !calm,
});
L.control.zoom({zoomInTitle: words.zoomIn, zoomOutTitle: words.zoomOut}).addTo(map);
// The keys + and - do the same: the map is one stop for Tab.
for (const button of map.getContainer().querySelectorAll('.leaflet-control-zoom a'))
  button.tabIndex = -1;

const drawn = new Map();  // entity, or the cell of a crowd -> its marker on the map
let picture = null;

const placeOf = ({x, y}) => L.latLng(-y, x);

function fitMap() {
  map.invalidateSize(false);
  map.setMinZoom(-10).setMaxZoom(10).setMaxBounds(null);
  const whole = map.getBoundsZoom(FrameBounds);
  map.setView([-FrameHeight / 2, FrameWidth / 2], whole, {animate: false});
  map.setMinZoom(whole).setMaxZoom(whole + 4);
  map.setMaxBounds(L.latLngBounds(FrameBounds).pad(0.4));
}

/** Hands over a picture's address once the page has been read that far; it is not decoded before. */
function whenPicture(number, use) {
  const source = element(`picture-${number}`);
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
  const missing = () => { element('noPicture').hidden = region !== shown; };
  element('noPicture').hidden = true;
  if (picture)
    picture.remove();
  picture = L.rectangle(FrameBounds, {className: 'frame', interactive: false}).addTo(map);
  if (shown.picture === undefined)
    return missing();
  whenPicture(shown.picture, (address) => {
    if (region !== shown)
      return;
    picture.remove();
    picture = L.imageOverlay(address, FrameBounds).on('error', missing).addTo(map);
  });
}

/** What is to be drawn: every entity in view, or crowds of them where they are too many. */
function markersInView() {
  const bounds = map.getBounds().pad(0.1);
  const [west, east] = [bounds.getWest(), bounds.getEast()];
  const [top, bottom] = [-bounds.getNorth(), -bounds.getSouth()];
  const inView = visible.filter(({x, y}) => x >= west && x <= east && y >= top && y <= bottom);
  const markers = new Map();
  if (inView.length <= MarkersAtMost) {
    for (const entity of inView)
      markers.set(entity, {entity, count: 1});
  } else {
    const cell = CellSize / map.getZoomScale(map.getZoom(), 0);
    const cells = new Map();
    for (const entity of inView) {
      const key = `${Math.floor(entity.x / cell)},${Math.floor(entity.y / cell)}`;
      const crowd = cells.get(key);
      if (crowd)
        crowd.count += 1;
      else
        cells.set(key, {entity, count: 1});
    }
    for (const [key, crowd] of cells)
      markers.set(crowd.count > 1 ? `${key} ${crowd.count} ${cell}` : crowd.entity, crowd);
  }
  if (current && visible.includes(current))
    markers.set(current, {entity: current, count: 1});
  return markers;
}

function makeMarker({entity, count}) {
  const name = make('span', {className: 'name', textContent: entity.name});
  const icon = L.divIcon({
    className: count > 1 ? 'crowd' : `marker${entity.mark ? ' mark' : ''}`,
    html: count > 1 ? String(count) : name, iconSize: count > 1 ? [32, 32] : [16, 16],
  });
  const marker = L.marker(placeOf(entity), {icon, interactive: false, keyboard: false}).addTo(map);
  const shown = marker.getElement();
  Object.assign(marker, {entity, count, shown});
  name.setAttribute('aria-hidden', 'true');
  if (count > 1) {
    shown.setAttribute('aria-hidden', 'true');
  } else {
    shown.setAttribute('role', 'button');
    shown.tabIndex = -1;
    shown.addEventListener('focus', () => setCurrent(entity));
    shown.addEventListener('click', (event) => {
      event.stopPropagation();
      openEntity(entity);
    });
  }
  return marker;
}

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
  for (const {entity, count, shown} of drawn.values()) {
    if (count > 1)
      continue;
    const isFound = found.has(entity.tick);
    shown.classList.toggle('found', isFound);
    shown.setAttribute('aria-label', isFound ? `${entity.name}, ${words.found}` : entity.name);
  }
}

/** The one element of the map that Tab reaches: the current marker, else the first, else the map. */
function setTabStop() {
  const single = [...drawn.values()].filter(({count}) => count === 1);
  const stop = single.find(({entity}) => entity === current) || single[0];
  for (const marker of single)
    marker.shown.tabIndex = marker === stop ? 0 : -1;
  map.getContainer().tabIndex = stop ? -1 : 0;
}

const pen = document.createElement('canvas').getContext('2d');
pen.font = getComputedStyle(document.documentElement).getPropertyValue('--name-font');
const NameSides = {
  right: (x, y, width) => [x + 11, y - 11, width, 22],
  left: (x, y, width) => [x - 11 - width, y - 11, width, 22],
  below: (x, y, width) => [x - width / 2, y + 11, width, 22],
  above: (x, y, width) => [x - width / 2, y - 33, width, 22],
};

/** Puts each name on a side where it covers no other name; one that finds none waits for a hover. */
function placeNames() {
  const taken = [];
  const size = map.getSize();
  const meets = ([x, y, width, height]) => taken.some(([left, top, wide, high]) =>
    x < left + wide && left < x + width && y < top + high && top < y + height);
  for (const {entity, count, shown} of drawn.values()) {
    if (count > 1)
      continue;
    const {x, y} = map.latLngToContainerPoint(placeOf(entity));
    const width = Math.min(260, (entity.nameWidth ??= pen.measureText(entity.name).width + 12));
    const inside = Object.keys(NameSides).filter((side) => {
      const [left, , wide] = NameSides[side](x, y, width);
      return left >= 0 && left + wide <= size.x;
    });
    const free = view.names && inside.find((side) => !meets(NameSides[side](x, y, width)));
    if (free)
      taken.push(NameSides[free](x, y, width));
    shown.dataset.side = free || inside[0] || 'right';
    shown.classList.toggle('named', Boolean(free));
  }
}

function nearestMarker(point, radius) {
  let nearest = null;
  let best = radius;
  for (const marker of drawn.values()) {
    const away = point.distanceTo(map.latLngToContainerPoint(placeOf(marker.entity)));
    if (away <= best)
      [nearest, best] = [marker, away];
  }
  return nearest;
}

function hover(point) {
  const over = point && nearestMarker(point, HoverRadius);
  for (const marker of drawn.values())
    marker.shown.classList.toggle('hovered', marker === over);
  map.getContainer().classList.toggle('over', Boolean(over));
}

function pickAt(point) {
  const marker = nearestMarker(point, TouchRadius);
  if (!marker)
    closeEntity();
  else if (marker.count > 1 && map.getZoom() < map.getMaxZoom())
    map.setView(placeOf(marker.entity), map.getZoom() + 1.5);
  else
    openEntity(marker.entity);
}

function setCurrent(entity) {
  current = entity;
  for (const row of element('list').children)
    row.classList.toggle('current', row.entity === entity);
  setTabStop();
}

/** Moves the map as far as needed for the entity to be seen beside an open description. */
function bringIntoView(entity) {
  const box = map.getContainer().getBoundingClientRect();
  const panel = element('entity').getBoundingClientRect();
  const beside = panel.left >= box.right || panel.width === 0;
  const covered = beside ? 0 : Math.max(0, box.bottom - panel.top);
  map.panInside(placeOf(entity), {padding: [40, 40], paddingBottomRight: [40, 40 + covered],
    animate: !calm});
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
  const here = visible.indexOf(current);
  const steps = {Home: 0, End: visible.length - 1, PageUp: here - 1, PageDown: here + 1};
  const next = here < 0 ? visible[0]
    : key in steps ? visible[steps[key]] : nextMarker(current, ...Arrows[key]);
  if (next)
    focusMarker(next);
}

function mapKey(event) {
  const key = event.key;
  if (event.ctrlKey || event.altKey || event.metaKey)
    return;
  if (key in Arrows && event.shiftKey)
    map.panBy(Arrows[key].map((way) => way * 100), {animate: !calm});
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

let rows = [];

/** Marks, parts and hits: what the list holds, with a note where a name alone says too little. */
function fillList() {
  const typed = element('search').value.trim();
  const several = region.categories.filter(({chosen}) => chosen).length > 1;
  rows = typed ? search(typed) : visible.map((entity) =>
    ({entity, note: several ? entity.category.caption : ''}));
  element('list').replaceChildren();
  element('list').scrollTop = 0;
  addRows(RowsAtOnce);
  refreshTicks();
}

function addRows(end) {
  const list = element('list');
  for (const {entity, note} of rows.slice(list.children.length, end)) {
    const tick = make('input', {type: 'checkbox', tabIndex: -1});
    tick.setAttribute('aria-label', `${words.found}: ${entity.name}`);
    const button = make('button', {type: 'button', tabIndex: -1},
      make('span', {className: 'entity', textContent: entity.name}));
    if (note)
      button.append(make('small', {textContent: note}));
    const row = make('li', {entity}, make('label', {className: 'tick'}, tick), button);
    row.setAttribute('aria-setsize', rows.length);
    row.setAttribute('aria-posinset', list.children.length + 1);
    row.classList.toggle('current', entity === current);
    tick.checked = found.has(entity.tick);
    list.append(row);
  }
  if (list.firstChild && !list.querySelector('[tabindex="0"]'))
    setRowStop(list.firstChild);
}

function setRowStop(row) {
  for (const stop of element('list').querySelectorAll('[tabindex="0"]'))
    stop.tabIndex = -1;
  for (const stop of row.querySelectorAll('input, button'))
    stop.tabIndex = 0;
}

function listKey(event) {
  const list = element('list');
  const row = event.target.closest('li');
  const here = [...list.children].indexOf(row);
  const target = {ArrowUp: here - 1, ArrowDown: here + 1, Home: 0, End: rows.length - 1}[event.key];
  if (!row || target === undefined)
    return;
  event.preventDefault();
  addRows(target + 2);
  if (target < 0)
    return element('search').focus();
  list.children[target]?.querySelector(event.target.localName).focus();
}

// ---- Categories

function chooseCategory(category, chosen) {
  category.chosen = chosen;
  view.chosen[region.key] = region.categories.filter((each) => each.chosen)
    .map(({section}) => section);
  keepView();
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
  element('groups').replaceChildren(...[...groups].map(([caption, categories]) =>
    make('details', {open: groups.size < 2 || categories.length < 25},
      make('summary', {textContent: caption}), ...categories.map(makeCategory))));
  setStop(element('groups'), element('groups').querySelector('summary'));
}

function makeCategory(category) {
  category.box = make('input', {type: 'checkbox', checked: category.chosen});
  category.box.addEventListener('change', () => chooseCategory(category, category.box.checked));
  category.count = make('span', {className: 'count'});
  return make('label', {className: 'category'}, category.box,
    make('span', {className: 'caption', textContent: category.caption}), ' ', category.count);
}

// ---- What a change shows

function refresh() {
  const chosen = region.categories.filter((category) => category.chosen);
  visible = once(chosen.flatMap(({entities}) => entities))
    .sort((one, other) => collator.compare(one.name, other.name));
  for (const category of region.categories)
    category.box.checked = category.chosen;
  drawMarkers();
  fillList();
}

function refreshTicks() {
  markFound();
  for (const row of element('list').children)
    row.querySelector('input').checked = found.has(row.entity.tick);
  for (const {entities, count} of region.categories) {
    const done = entities.filter(({tick}) => found.has(tick)).length;
    count.textContent = done ? `${done}/${entities.length}` : entities.length;
    count.parentNode.classList.toggle('done', done > 0 && done === entities.length);
  }
  const done = rows.filter(({entity}) => found.has(entity.tick)).length;
  element('listTitle').textContent = element('search').value.trim()
    ? fill('hits', rows.length) : fill('foundOf', done, rows.length);
  if (opened)
    element('entityFound').checked = found.has(opened.tick);
}

function showRegion(next) {
  if (next === region)
    return;
  region = next;
  current = null;
  closeEntity();
  for (const tab of element('regions').children) {
    tab.setAttribute('aria-selected', tab.region === region);
    tab.tabIndex = tab.region === region ? 0 : -1;
    if (tab.region === region) {
      element('region').setAttribute('aria-labelledby', tab.id);
      tab.scrollIntoView?.({block: 'nearest', inline: 'nearest'});
    }
  }
  map.getContainer().setAttribute('aria-label', fill('mapOf', region.caption));
  recallCategories();
  fillCategories();
  visible = [];
  fitMap();
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

function search(typed) {
  const terms = fold(typed).split(/\s+/);
  const hits = [[], [], []];
  for (const entity of allEntities()) {
    const name = (entity.foldedName ??= fold(entity.name));
    if (terms.every((term) => name.includes(term))) {
      hits[name.startsWith(terms[0]) ? 0 : 1].push({entity, note: placeText(entity)});
    } else if (entity.text) {
      const text = (entity.foldedText ??= fold(entity.text));
      if (terms.every((term) => name.includes(term) || text.includes(term)))
        hits[2].push({entity, terms});
    }
  }
  const kept = new Set(once(hits.flat().map(({entity}) => entity)));
  return hits.flat().filter(({entity}) => kept.has(entity)).map(({entity, note, terms: sought}) =>
    ({entity, get note() { return note || excerpt(entity.text, sought); }}));
}

const placeText = ({category}) => `${category.region.caption}: ${category.caption}`;

/** The part of a text around the first of the terms in it, found letter by letter as it was folded. */
function excerpt(text, terms) {
  const origin = [];
  let folded = '';
  [...text].reduce((at, letter) => {
    const plain = fold(letter);
    folded += plain;
    origin.push(...Array(plain.length).fill(at));
    return at + letter.length;
  }, 0);
  const places = terms.map((term) => folded.indexOf(term)).filter((at) => at >= 0);
  const from = Math.max(0, origin[Math.min(...places)] - 30) || 0;
  return `${from ? '…' : ''}${text.slice(from, from + 90).replace(/\s+/g, ' ')}…`;
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

function openEntity(entity) {
  opener = document.activeElement;
  opened = entity;
  say('');
  showPart('');
  element('entityName').textContent = entity.name;
  element('entityPlace').textContent = placeText(entity);
  element('entityText').textContent = entity.text || words.noText;
  element('entityLink').href = linkOf(entity);
  element('portrait').hidden = entity.portrait === undefined;
  element('portrait').removeAttribute('src');
  if (entity.portrait !== undefined) {
    whenPicture(entity.portrait, (address) => {
      if (opened === entity)
        element('portrait').src = address;
    });
  }
  element('entity').hidden = false;
  element('entity').scrollTop = 0;
  setAddress(linkOf(entity));
  setCurrent(entity);
  refreshTicks();
  bringIntoView(entity);
  drawMarkers();
  element('entityName').focus({preventScroll: true});
}

function closeEntity() {
  if (!opened)
    return;
  const marker = drawn.get(opened);
  const inside = element('entity').contains(document.activeElement);
  element('entity').hidden = true;
  opened = null;
  setAddress(`#${encodeURIComponent(region.key)}`);
  if (inside)
    (opener?.isConnected && opener.offsetParent ? opener : marker?.shown)?.focus();
}

/** Opens an entity wherever it is: its region, its category, its place on the map. */
function goTo(entity) {
  showRegion(entity.category.region);
  if (!visible.some(({tick}) => tick === entity.tick))
    chooseCategory(entity.category, true);
  openEntity(visible.find(({tick}) => tick === entity.tick));
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
  element('ticksText').value = ticksAsText();
  element('ticksState').textContent = stored ? '' : words.noStorage;
  element('ticksDialog').showModal();
}

function takeTicks() {
  const {ticks, strange} = ticksFromText(element('ticksText').value);
  const before = found.size;
  ticks.forEach((tick) => found.add(tick));
  keepTicks();
  element('ticksState').textContent = fill('taken', found.size - before, strange);
}

function removeTicks() {
  element('ticksText').value = ticksAsText();
  found.clear();
  keepTicks();
  element('ticksState').textContent = words.removed;
}

function copyTicks() {
  element('ticksText').select();
  document.execCommand('copy');
  element('ticksState').textContent = words.copied;
}

// ---- Keys, parts of a small screen, paper

const Stops = {regions: '[role=tab]', groups: 'summary, input'};

/** One stop for Tab in a part; the arrow keys move it. */
function setStop(part, stop) {
  for (const item of part.querySelectorAll(Stops[part.id]))
    item.tabIndex = item === stop ? 0 : -1;
}

function rove(part, before, after) {
  part.addEventListener('focusin', ({target}) => setStop(part, target));
  part.addEventListener('keydown', (event) => {
    const items = [...part.querySelectorAll(Stops[part.id])].filter((item) => item.offsetParent);
    const here = items.indexOf(event.target);
    const target = {[before]: here - 1, [after]: here + 1, Home: 0, End: items.length - 1}[event.key];
    if (here < 0 || !items[target])
      return;
    event.preventDefault();
    items[target].focus();
  });
}

function showPart(part) {
  document.body.dataset.part = part;
  for (const button of element('bar').children)
    button.setAttribute('aria-expanded', button.dataset.part === part);
}

function preparePaper() {
  addRows(rows.length);
  document.body.classList.add('paper');
  map.getContainer().style.width = `${PrintWidth}px`;
  map.getContainer().style.height = `${PrintWidth * FrameHeight / FrameWidth}px`;
  fitMap();
  visible.forEach((entity, index) => {
    const marker = drawn.get(entity);
    if (marker)
      marker.shown.dataset.number = index + 1;
  });
}

function leavePaper() {
  document.body.classList.remove('paper');
  map.getContainer().style.width = map.getContainer().style.height = '';
  fitMap();
}

function fillWords() {
  for (const each of document.querySelectorAll('[data-word]'))
    each.textContent = words[each.dataset.word];
  for (const each of document.querySelectorAll('[data-label]'))
    each.setAttribute('aria-label', words[each.dataset.label]);
  for (const each of document.querySelectorAll('[data-placeholder]'))
    each.placeholder = words[each.dataset.placeholder];
}

function fillTabs() {
  world.regions.forEach((each, index) => {
    const tab = make('button', {type: 'button', id: `tab-${index}`, region: each,
      textContent: each.caption});
    tab.setAttribute('role', 'tab');
    tab.setAttribute('aria-controls', 'region');
    tab.addEventListener('click', () => showRegion(each));
    tab.addEventListener('focus', () => tab.matches(':focus-visible') && showRegion(each));
    element('regions').append(tab);
  });
}

function listenToMap() {
  map.on('moveend', drawMarkers);
  map.on('click', ({containerPoint}) => pickAt(containerPoint));
  map.on('mousemove', ({containerPoint}) => hover(containerPoint));
  map.on('mouseout', () => hover(null));
  map.getContainer().addEventListener('keydown', mapKey);
  new ResizeObserver(() => map.invalidateSize(false)).observe(map.getContainer());
}

function listenToList() {
  const list = element('list');
  let waiting = 0;
  element('search').addEventListener('input', () => {
    clearTimeout(waiting);
    waiting = setTimeout(fillList, 120);
  });
  element('search').addEventListener('keydown', (event) => {
    if (event.key === 'ArrowDown')
      list.querySelector('button')?.focus();
  });
  list.addEventListener('scroll', () => {
    if (list.scrollTop + 2 * list.clientHeight > list.scrollHeight)
      addRows(list.children.length + RowsAtOnce);
  });
  list.addEventListener('keydown', listKey);
  list.addEventListener('focusin', (event) => setRowStop(event.target.closest('li')));
  list.addEventListener('change', (event) =>
    setFound(event.target.closest('li').entity, event.target.checked));
  list.addEventListener('click', (event) => {
    if (event.target.closest('button'))
      goTo(event.target.closest('li').entity);
  });
}

function listenToParts() {
  element('names').checked = view.names;
  element('names').addEventListener('change', () => {
    view.names = element('names').checked;
    keepView();
    placeNames();
  });
  element('none').addEventListener('click', () => {
    region.categories.forEach((category) => { category.chosen = false; });
    chooseCategory(region.categories[0] || {}, false);
  });
  element('close').addEventListener('click', closeEntity);
  element('entityFound').addEventListener('change', () =>
    setFound(opened, element('entityFound').checked));
  element('entityLink').addEventListener('click', () =>
    navigator.clipboard?.writeText(element('entityLink').href)
      .then(() => say(words.copied), () => {}));
  for (const button of element('bar').children) {
    button.addEventListener('click', () => {
      closeEntity();
      showPart(document.body.dataset.part === button.dataset.part ? '' : button.dataset.part);
    });
  }
  document.addEventListener('keydown', (event) => {
    if (event.key !== 'Escape' || element('ticksDialog').open)
      return;
    if (opened)
      closeEntity();
    else
      showPart('');
  });
}

function listenToTicks() {
  element('ticks').addEventListener('click', openTicks);
  element('ticksCopy').addEventListener('click', copyTicks);
  element('ticksTake').addEventListener('click', takeTicks);
  element('ticksRemove').addEventListener('click', removeTicks);
  element('ticksClose').addEventListener('click', () => element('ticksDialog').close());
  addEventListener('storage', (event) => {
    if (event.key === TicksKey) {
      found = new Set(ticksFromText(event.newValue || '').ticks);
      refreshTicks();
    }
  });
}

fillWords();
fillTabs();
recallAll();
rove(element('regions'), 'ArrowLeft', 'ArrowRight');
rove(element('groups'), 'ArrowUp', 'ArrowDown');
listenToMap();
listenToList();
listenToParts();
listenToTicks();
if (world.regions.length)
  followLink();
if (!stored)
  say(words.noStorage);
addEventListener('hashchange', followLink);
addEventListener('beforeprint', preparePaper);
addEventListener('afterprint', leavePaper);

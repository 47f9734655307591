// The manual's search: a box on every page that finds families, functions, pages and names by any word of them. The
// index is loaded when the box is first used, as a script, so that it works from a disk as well.
'use strict';

const LIMIT = 30;

// The words of a name: qvpiResizeLanczos has three.
function spaced(name) {
  return name.replace(/([a-z\d])(?=[A-Z])/g, '$1 ').toLowerCase();
}

// How well a term suits an entry: by its title, or by its words, which are phrases between commas.
function score(entry, term) {
  const title = entry.title.toLowerCase(), words = `, ${entry.words ?? entry.about.toLowerCase()},`;
  if (title === term) return 100;
  if (title.startsWith(term)) return 60;
  if (new RegExp(`(^|[^a-z0-9])${term}`).test(spaced(entry.title))) return 45;
  if (words.includes(`, ${term},`)) return 40;
  if (words.includes(`, ${term}`)) return 35;
  if (words.includes(` ${term}`)) return 20;
  return title.includes(term) ? 15 : 0;
}

// All terms have to be found. Of entries that suit alike, those of a lower rank come first: families before functions.
function find(entries, query) {
  const terms = query.toLowerCase().replace(/[^a-z0-9_ ]/g, ' ').split(' ').filter(Boolean);
  if (!terms.length) return [];
  const found = [];
  for (const entry of entries) {
    const scores = terms.map((term) => score(entry, term));
    if (scores.every(Boolean)) found.push([scores.reduce((sum, value) => sum + value) - 4 * entry.rank, entry]);
  }
  found.sort((a, b) => b[0] - a[0]);
  return found.slice(0, LIMIT).map(([, entry]) => entry);
}

function load(done) {
  if (window.FIND_INDEX) return done();
  const script = document.createElement('script');
  script.src = 'find-index.js';
  script.onload = done;
  document.head.append(script);
}

function show(list, entries, query) {
  list.replaceChildren(...entries.map((entry) => {
    const link = document.createElement('a'), about = document.createElement('small');
    link.href = entry.url;
    link.textContent = entry.title;
    about.textContent = entry.about;
    link.append(about);
    return link;
  }));
  if (!entries.length && query.trim()) list.textContent = 'Nothing is called that.';
  list.hidden = !query.trim();
}

function move(event, box, list) {
  const links = [box, ...list.querySelectorAll('a')], here = links.indexOf(document.activeElement);
  const step = {ArrowDown: 1, ArrowUp: -1}[event.key];
  if (step && links[here + step]) links[here + step].focus();
  else if (event.key === 'Enter' && here === 0 && links[1]) links[1].click();
  else if (event.key === 'Escape') list.hidden = true;
  else return;
  event.preventDefault();
}

window.addEventListener('DOMContentLoaded', () => {
  const area = document.createElement('div'), box = document.createElement('input'), list = document.createElement('div');
  area.id = 'find';
  Object.assign(box, {type: 'search', placeholder: 'Find: blur, crop, qvpiAdd ... ( / )', autocomplete: 'off'});
  box.setAttribute('aria-label', 'Find in the manual');
  list.hidden = true;
  area.append(box, list);
  document.getElementById('titlearea').append(area);
  const update = () => load(() => show(list, find(window.FIND_INDEX, box.value), box.value));
  box.addEventListener('input', update);
  box.addEventListener('focus', update);
  area.addEventListener('keydown', (event) => move(event, box, list));
  document.addEventListener('click', (event) => { if (!area.contains(event.target)) list.hidden = true; });
  document.addEventListener('keydown', (event) => {
    if (event.key === '/' && document.activeElement !== box) { box.focus(); event.preventDefault(); }
  });
});

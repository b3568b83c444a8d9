'use strict';
const at = id => document.getElementById(id);
const fields = JSON.parse(at('fields').textContent);   // [name, caption, page], the record number first
const number = Object.fromEntries(fields.map((field, column) => [field[0], column]));
// One line for each film, a tab between fields; a sign of its own stands for "<".
const lines = at('films').textContent.replaceAll('\uF73C', '<').split('\n').filter(line => line !== '');
const films = lines.map(line => line.split('\t'));
const text = (film, column) => film[column] || '';
const folded = line => (/[^\x00-\x7F]/.test(line) ? line.normalize('NFD').replace(/[\u0300-\u036F]/g, '') : line).toLowerCase();
// All lines as one text, and where each ends: one scan of it is far quicker than one of each line.
const haystack = lines.map(folded).join('\n');
const ends = new Int32Array(films.length);
for (let film = 0, end = -1; film < films.length; ++film) {
  end = haystack.indexOf('\n', end + 1);
  ends[film] = end < 0 ? haystack.length : end;
}

// Which films have the word, as a byte for each.
function having(word) {
  const marks = new Uint8Array(films.length);
  let film = 0;
  for (let place = haystack.indexOf(word); place >= 0; place = haystack.indexOf(word, ends[film])) {
    while (ends[film] <= place) ++film;
    marks[film] = 1;
  }
  return marks;
}

const decade = year => /^\s*[1-9]\d{3}\s*$/.test(year) ? year.trim().slice(0, 3) + '0s' : '';
const shares = {
  Format: film => text(film, number.Format),
  Genre: film => text(film, number.Genre),
  Year: film => decade(text(film, number.Year)),
};

const orders = [['Title', 'Title'], ['Director', 'Director'], ['Year', 'Year'], ['Format', 'Format'], ['Genre', 'Genre'],
  ['Time', 'Time'], ['Cost', 'Price'], ['Ratings', 'Your rating'], ['Purchase', 'Purchase date'], ['Record', 'Record']];
const columns = [['Title', 't'], ['Director', 'c'], ['Year', 'c'], ['Format', 'c'], ['Genre', 'c'], ['Time', 'c wide'],
  ['Rating', 'c wide'], ['Record', 'c wide']];
const numeric = new Set(['Year', 'Time', 'Cost', 'Record']);
let order = 'Title', turned = false, chosen = {}, shown = [], here = -1;
const ranks = {};

// The place of every film in an order; films without the value come last.
function ranked(name) {
  if (ranks[name]) return ranks[name];
  const column = number[name];
  const keys = films.map(film => {
    if (!numeric.has(name)) return folded(text(film, column));
    const digits = text(film, column).replace(',', '.').match(/\d+(\.\d+)?/);
    return digits ? Number(digits[0]) : '';
  });
  const titles = name === 'Title' ? keys : films.map(film => folded(text(film, number.Title)));
  const compare = (one, other) => (one === '') - (other === '') || (one < other ? -1 : one > other ? 1 : 0);
  const list = films.map((film, index) => index);
  list.sort((one, other) => compare(keys[one], keys[other]) || compare(titles[one], titles[other]) || one - other);
  return ranks[name] = list;
}

function find() {
  const words = folded(at('search').value).split(/\s+/).filter(word => word !== '').map(having);
  const tests = Object.entries(chosen);
  const list = ranked(order);
  shown = list.filter(index => words.every(marks => marks[index]) &&
    tests.every(([name, value]) => shares[name](films[index]) === value));
  if (turned) shown.reverse();
  at('found').textContent = shown.length === films.length ? `${films.length.toLocaleString('en')} films` :
    `${shown.length.toLocaleString('en')} of ${films.length.toLocaleString('en')}`;
  here = -1;
  at('list').scrollTop = 0;
  draw();
}

const rowHeight = () => parseFloat(getComputedStyle(document.documentElement).getPropertyValue('--row'));

// Only the rows in sight exist.
function draw() {
  const height = rowHeight(), list = at('list');
  const first = Math.max(0, Math.floor(list.scrollTop / height) - 5);
  const last = Math.min(shown.length, first + Math.ceil(list.clientHeight / height) + 10);
  at('space').style.height = shown.length * height + 'px';
  at('rows').style.transform = `translateY(${first * height}px)`;
  const rows = [];
  for (let place = first; place < last; ++place) rows.push(row(place));
  at('rows').replaceChildren(...rows);
}

function row(place) {
  const film = films[shown[place]];
  const element = document.createElement('div');
  element.className = place === here ? 'row here' : 'row';
  element.setAttribute('role', 'option');
  element.setAttribute('aria-selected', place === here);
  element.dataset.place = place;
  const cells = columns.map(([name, style]) =>
    Object.assign(document.createElement('span'), {className: style, textContent: text(film, number[name])}));
  const rest = Object.assign(document.createElement('div'), {className: 'rest'});
  rest.append(...cells.slice(1));
  element.append(cells[0], rest);
  return element;
}

function open(place) {
  if (place < 0 || place >= shown.length) return;
  here = place;
  const film = films[shown[place]];
  const pages = [1, 2].map(page => {
    const list = document.createElement('dl');
    list.className = 'page';
    fields.forEach(([name, caption, its], column) => {
      if (its !== page) return;
      const box = document.createElement('div'), tag = document.createElement('dt'), value = document.createElement('dd');
      if (['Title', 'Written', 'Awards'].includes(name)) box.className = 'long';
      tag.textContent = caption;
      value.textContent = text(film, column);
      box.append(tag, value);
      list.append(box);
    });
    const heading = document.createElement('h2');
    heading.textContent = 'Page ' + page;
    return [heading, list];
  });
  at('pages').replaceChildren(...pages.flat());
  at('place').textContent = `Record ${film[0]}, ${place + 1} of ${shown.length}`;
  at('back').disabled = place === 0;
  at('next').disabled = place === shown.length - 1;
  if (!at('film').open) at('film').showModal();
  at('film').scrollTop = 0;
  document.body.classList.add('one');
  show();
}

function show() {
  const height = rowHeight(), list = at('list');
  if (here * height < list.scrollTop) list.scrollTop = here * height;
  if ((here + 1) * height > list.scrollTop + list.clientHeight) list.scrollTop = (here + 1) * height - list.clientHeight;
  draw();
}

function sortBy(name) {
  turned = name === order && !turned;
  order = name;
  at('order').value = name;
  find();
}

for (const [name, caption] of orders) at('order').add(new Option(caption, name));
for (const [name] of columns) {
  const head = document.createElement('button');
  head.textContent = name === 'Rating' ? 'MPAA' : name;
  head.tabIndex = -1;
  head.onclick = () => orders.some(row => row[0] === name) && sortBy(name);
  at('heads').append(head);
}
at('bar').onsubmit = event => event.preventDefault();
at('search').oninput = find;
at('order').onchange = () => { order = at('order').value; turned = false; find(); };
at('turn').onclick = () => { turned = !turned; find(); };
at('list').onscroll = () => requestAnimationFrame(draw);
at('rows').onclick = event => open(Number(event.target.closest('.row').dataset.place));
at('list').onkeydown = event => {
  const page = Math.max(1, Math.floor(at('list').clientHeight / rowHeight()) - 1);
  const step = {ArrowDown: 1, ArrowUp: -1, PageDown: page, PageUp: -page, Home: -shown.length, End: shown.length}[event.key];
  if (event.key === 'Enter') open(here);
  if (!step || shown.length === 0) return;
  event.preventDefault();
  here = Math.min(Math.max(here + step, 0), shown.length - 1);
  show();
};
at('back').onclick = () => open(here - 1);
at('next').onclick = () => open(here + 1);
at('close').onclick = () => at('film').close();
at('film').onclose = () => document.body.classList.remove('one');
at('film').onkeydown = event => {
  if (event.key === 'ArrowLeft') open(here - 1);
  if (event.key === 'ArrowRight') open(here + 1);
};
at('summary').onclick = event => {
  const share = event.target.closest('button');
  if (!share) return;
  const {name, value} = share.dataset;
  const was = chosen[name] === value;
  if (was) delete chosen[name]; else chosen[name] = value;
  for (const other of document.querySelectorAll(`#summary button[data-name=${name}]`))
    other.setAttribute('aria-pressed', !was && other === share);
  find();
};
addEventListener('resize', draw);
if (innerWidth < 800) at('summary').open = false;

// What is found, as tables: paper has no scroll bar. One of all films would take a browser minutes to part into pages.
const rowsOfTable = 500;
let summaryWasOpen = false;
addEventListener('beforeprint', () => {
  summaryWasOpen = at('summary').open;
  at('summary').open = true;
  if (document.body.classList.contains('one')) return;
  const names = ['Record', 'Title', 'Year', 'Director', 'Format', 'Genre', 'Time', 'Rating'];
  const cells = (kind, texts) => {
    const line = document.createElement('tr');
    for (const one of texts) line.append(Object.assign(document.createElement(kind), {textContent: one}));
    return line;
  };
  const tables = [];
  for (let first = 0; first < shown.length; first += rowsOfTable) {
    const table = document.createElement('table'), head = document.createElement('thead'), body = document.createElement('tbody');
    head.append(cells('th', names.map(name => name === 'Rating' ? 'MPAA' : name)));
    for (const index of shown.slice(first, first + rowsOfTable)) body.append(cells('td', names.map(name => text(films[index], number[name]))));
    table.append(head, body);
    tables.push(table);
  }
  at('paper').replaceChildren(...tables);
});
addEventListener('afterprint', () => {
  at('summary').open = summaryWasOpen;
  at('paper').replaceChildren();
});
find();

'use strict';
const search = document.getElementById('search');
const filter = document.getElementById('filter');
const shown = document.getElementById('shown');
const detail = document.getElementById('detail');
const list = document.getElementById('lines');
const boards = [...document.querySelectorAll('section')].map(section => ({
  section,
  title: section.firstElementChild.textContent.toLowerCase(),
  rows: [...section.querySelectorAll('.r')].map(row => ({
    row, text: row.getAttribute('aria-label').toLowerCase(), uses: ` ${row.dataset.u} ` })),
}));
const count = boards.reduce((sum, board) => sum + board.rows.length, 0);
let reachable = null; // the row that the Tab key reaches; the arrow keys go on from there

function reach(row) {
  if (reachable) {
    reachable.tabIndex = -1;
    reachable.removeAttribute('aria-selected');
  }
  reachable = row;
  if (row)
    row.tabIndex = 0;
}

function show() {
  const words = search.value.toLowerCase().split(/\s+/).filter(Boolean);
  const use = filter.value && ` ${filter.value} `;
  let left = 0;
  let first = null;
  for (const board of boards) {
    let any = false;
    for (const {row, text, uses} of board.rows) {
      const fits = uses.includes(use) && words.every(word => text.includes(word) || board.title.includes(word));
      if (row.hidden === fits)
        row.hidden = !fits;
      if (fits) {
        any = true;
        ++left;
        first ??= row;
      }
    }
    board.section.hidden = !any;
  }
  shown.textContent = left === count ? `${count} lines` : `${left} of ${count} lines`;
  detail.textContent = left ? detail.dataset.hint : 'No line fits. Search for less, or show all groups.';
  reach(first);
}

function select(row) {
  reach(row);
  row.setAttribute('aria-selected', 'true');
  detail.textContent = row.getAttribute('aria-label');
}

search.addEventListener('input', show);
filter.addEventListener('input', show);
search.form.addEventListener('submit', event => event.preventDefault());
for (const kind of ['focusin', 'click']) {
  list.addEventListener(kind, event => {
    const row = event.target.closest('.r');
    if (row)
      select(row);
  });
}
list.addEventListener('keydown', event => {
  const rows = [...list.querySelectorAll('section:not([hidden]) .r:not([hidden])')];
  const at = rows.indexOf(reachable);
  const to = {ArrowDown: at + 1, ArrowUp: at - 1, Home: 0, End: rows.length - 1}[event.key];
  if (rows[to]) {
    event.preventDefault();
    rows[to].focus();
  }
});
show();

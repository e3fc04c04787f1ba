// A click on a column's heading, or Enter there, sorts the table's rows by it, numbers before words and blanks last;
// the next one turns the order round.
document.addEventListener("DOMContentLoaded", () => {
  const number = /^([-+]?[\d.]+(e[-+]?\d+)?)( ?%| \(.*\))?$/i;
  const key = (row, column) => {
    const text = row.cells[column]?.textContent.trim() ?? "";
    return { text, value: number.test(text) ? parseFloat(text) : NaN };
  };
  const compare = (a, b) =>
    (a.text === "") - (b.text === "") || isNaN(a.value) - isNaN(b.value) ||
    (isNaN(a.value) ? a.text.localeCompare(b.text, "en", { numeric: true }) : a.value - b.value);

  const sort = (heading) => {
    const [head, ...rows] = heading.closest("table").rows;
    const column = heading.cellIndex;
    const up = heading.ariaSort !== "ascending";
    for (const other of head.cells) other.ariaSort = null;
    heading.ariaSort = up ? "ascending" : "descending";
    rows.sort((r, s) => {
      const a = key(r, column), b = key(s, column);
      return a.text && b.text && !up ? compare(b, a) : compare(a, b);
    });
    rows[0]?.parentNode.append(...rows);
  };
  for (const heading of document.querySelectorAll("article tr:first-child > th")) {
    heading.tabIndex = 0;
    heading.title = "Sort";
    heading.addEventListener("click", () => sort(heading));
    heading.addEventListener("keydown", (event) => event.key === "Enter" && sort(heading));
  }
});

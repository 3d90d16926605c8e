// SPDX-License-Identifier: MIT
import { PushedPage } from "../controls/PushedPage";
import { FactRow, ListGroup } from "../controls/Rows";
import { usePage } from "../engine/Source";

/// What the app is, where it keeps the records, and what it is built on.
export function AboutPage() {
  const page = usePage("about");
  if (!page) return null;
  return (
    <PushedPage title={page.title}>
      <ListGroup note={page.note}>
        {page.facts.map((fact) => (
          <FactRow key={fact.title} {...fact} />
        ))}
      </ListGroup>
      <ListGroup title={page.librariesTitle}>
        {page.libraries.map((fact) => (
          <FactRow key={fact.title} {...fact} />
        ))}
      </ListGroup>
    </PushedPage>
  );
}

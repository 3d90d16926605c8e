// SPDX-License-Identifier: MIT
import type { SummaryCard as Summary } from "mivo";
import { useLayoutEffect, useState } from "preact/hooks";
import { useSize } from "../charts/Drawing";
import { Card, CardHead } from "../controls/Card";
import { NumberText } from "../controls/NumberText";

const steps = ["number-large", "number", "number-small", "number-row"];

interface FigureProps {
  value: string;
  label: string;
  largest: "number-large" | "number" | "number-small";
  trailing?: boolean;
}

/// A number over what it counts. It never wraps: where it has no room it steps down to a smaller size.
export function Figure({ value, label, largest, trailing = false }: FigureProps) {
  const { ref, element, size } = useSize<HTMLDivElement>();
  const first = steps.indexOf(largest);
  const [step, setStep] = useState(first);
  useLayoutEffect(() => setStep(first), [value, largest, size?.width]);
  useLayoutEffect(() => {
    if (element && element.scrollWidth > element.clientWidth + 1 && step < steps.length - 1) setStep(step + 1);
  }, [step, value, size?.width]);
  return (
    <div class={trailing ? "figure trailing" : "figure"} ref={ref}>
      <NumberText text={value} style={steps[step] ?? largest} />
      <span class="text-label secondary">{label}</span>
    </div>
  );
}

export function SummaryCard({ card, wide }: { card: Summary; wide: boolean }) {
  return (
    <Card class="summary">
      <CardHead title={card.title} detail={card.period} />
      <div class="figures">
        {card.figures.map(({ value, label }, place) => (
          <Figure key={label} value={value} label={label} largest={wide ? "number" : place < 2 ? "number-large" : "number-small"} />
        ))}
      </div>
    </Card>
  );
}

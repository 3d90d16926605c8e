// SPDX-License-Identifier: MIT
import type { Screen } from "mivo";
import type { ComponentType } from "preact";
import { BackupsPage } from "../data/BackupsPage";
import { AboutPage } from "../settings/AboutPage";
import { CardSettingsPage } from "../settings/CardSettingsPage";
import { RemindersPage } from "../settings/RemindersPage";
import { BadgesPage } from "./BadgesPage";
import { RoadmapPage } from "./RoadmapPage";
import { WeightsPage } from "./WeightsPage";

/// What is pushed over the page of a tab.
export const pushedPages: Partial<Record<Screen, ComponentType>> = {
  badges: BadgesPage,
  roadmap: RoadmapPage,
  weights: WeightsPage,
  cards: CardSettingsPage,
  reminders: RemindersPage,
  about: AboutPage,
  backups: BackupsPage,
};

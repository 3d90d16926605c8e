// SPDX-License-Identifier: MIT
import type * as Record from "./Records";

/// The pages that can be asked for, by their names.
export interface Pages {
  words: Record.ControlWords;
  browser: Record.BrowserWords;
  screens: Record.OpenScreens;
  appearance: Record.Appearance;
  message: Record.Message;
  statistics: Record.StatisticsPage;
  fastingChart: Record.DayBarsPage;
  eatingChart: Record.DayBarsPage;
  weightChart: Record.LineChartPage;
  weightFastingChart: Record.LineChartPage;
  addWeight: Record.AddWeightForm;
  goalWeight: Record.GoalWeightSheet;
  donations: Record.DonationsPage;
  badges: Record.BadgesPage;
  roadmap: Record.RoadmapPage;
  feedback: Record.FeedbackSheet;
  mail: Record.MailPage;
  repair: Record.RepairSheet;
  fasting: Record.FastingPage;
  history: Record.HistoryPage;
  editedFast: Record.FastSheet;
  severalFasts: Record.SeveralFastsSheet;
  goalChoice: Record.GoalChoice;
  dateChoice: Record.DateChoicePage;
  weights: Record.WeightsPage;
  editedWeight: Record.AddWeightForm;
  settings: Record.SettingsPage;
  cards: Record.CardSettingsPage;
  reminders: Record.RemindersPage;
  reminder: Record.DueReminder;
  about: Record.AboutPage;
  import: Record.ImportSheet;
  export: Record.ExportSheet;
  health: Record.HealthSheet;
  backups: Record.BackupsPage;
  restore: Record.RestoreSheet;
}

/// The lists whose rows can be asked for.
export interface Lists {
  fastingBars: Record.DayBarRow;
  eatingBars: Record.DayBarRow;
  weightPoints: Record.LinePoint;
  weightFastingPoints: Record.LinePoint;
  fastingTable: Record.TableRow;
  eatingTable: Record.TableRow;
  weightTable: Record.TableRow;
  weightFastingTable: Record.TableRow;
  historyRows: Record.HistoryRow;
  historyMonths: Record.HistoryMonth;
  days: string;
  hours: string;
  minutes: string;
  percentTexts: string;
  hourTexts: string;
  weightRows: Record.WeightRow;
}

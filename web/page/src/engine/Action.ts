// SPDX-License-Identifier: MIT
// What a person can do, by the names of the cases in host: a case without a field is its name.

export type Screen =
  | "statistics" | "badges" | "milestones" | "streaks" | "roadmap" | "feedback" | "donations" | "overlaps"
  | "goalWeight" | "weights" | "editWeight" | "weightMenu" | "date" | "table"
  | "fasting" | "editFast" | "addFast" | "severalFasts" | "fastGoal" | "fastStart" | "fastMenu" | "months"
  | "settings" | "cards" | "reminders" | "eatingWindow" | "about" | "import" | "export" | "health" | "backups"
  | "restore" | "firstWeekday" | "defaultGoal" | "weightUnit" | "language" | "appearance";

export type ScrollChartAction = { didTapBar: string };
export type LineChartAction = { didScroll: number } | { didTouch: number | null };
export type WeightAction =
  | { didChangeText: string } | "didTapIncrease" | "didTapDecrease" | { didChangeDate: number } | "didTapSave";
export type GoalChoiceAction = { didBegin: number } | { didPick: number } | "didOpenField" | { didType: string };
export type DateChoiceAction =
  | { didBegin: number } | { didTurnDay: number } | { didTurnHour: number } | { didTurnMinute: number } | { didType: string };

export type Action =
  | { didOpen: Screen } | { didClose: Screen } | "didGoBack"
  | "didTapMessage" | "didDismissMessages"
  // Fasting
  | "didTapFastingButton" | { didChangeStart: number } | { didChangeGoal: number }
  | { didTapFast: number } | { didDeleteFastOfRow: number } | "didDeleteEditedFast"
  | { didChangeDraftStart: number } | { didChangeDraftEnd: number } | { didChangeDraftGoal: number }
  | { didChangeDraftNote: string } | "didTapSaveDraft" | { didTypeFasts: string }
  | { goalChoice: GoalChoiceAction } | { dateChoice: DateChoiceAction }
  // Statistics
  | { didChooseTimeRange: number } | "didDismissTip"
  | { didSeeFastingBars: { first: number; last: number } } | { didSeeEatingBars: { first: number; last: number } }
  | { statistics:
      | { fastingChartAction: ScrollChartAction } | { eatingChartAction: ScrollChartAction }
      | { addWeightLogAction: WeightAction }
      | { goalWeightCardAction: unknown }
      | { destination: unknown } }
  | { weightChart: LineChartAction } | { weightFastingChart: LineChartAction }
  | "didConfirmOverlapRepair" | "didCancelOverlapRepair"
  // Weights
  | { didTapWeight: number } | { didDeleteWeightOfRow: number } | "didDeleteEditedWeight" | { editedWeight: unknown }
  // Roadmap
  | { roadmap: "didTapTryAgain" | { didTapStatus: string | null } | { didTapVote: string } }
  | { didTypeIdea: { idea: string; replyTo: string } } | "didFindNoMailProgram"
  // Settings
  | { didChooseWeightUnit: number } | { didChooseFirstWeekday: number } | { didChooseLanguage: number }
  | { didChooseAppearance: number } | { didChooseTextSize: number }
  | { didToggleCard: { group: "cards" | "charts" | "trends"; row: number } }
  | { didChooseCounted: number } | { didChooseLongestBreak: number } | { didChooseEatingWindow: number }
  | { settings:
      | { didChooseGoal: number } | "didToggleBelowGoal" | "didToggleReducedMotion"
      | "didToggleGoalReminder" | "didToggleEatingWindowReminder" }
  // Data
  | { didChooseFiles: string[] } | { importing: unknown } | "didSwitchPrintedWeights"
  | { didExportRow: { row: number; path: string } }
  | { backups: "didTapBackUp" | { didChoose: number } | "didTapRestore" | "didDismiss" }
  | { health: { didLink: string } | "didUnlink" };

// SPDX-License-Identifier: MIT
// What the pages are composed as: the records of mivo and host, field by field.

export type Zone =
  | "fasting"
  | "eating"
  | "anabolic"
  | "catabolic"
  | "fatBurning"
  | "ketosis"
  | "deepKetosis";
export type BadgeList = "milestones" | "streaks";

export interface NoticeCard {
  title: string;
  text: string;
  button: string;
}

export interface SummaryFigure {
  label: string;
  value: string;
}

export interface SummaryCard {
  title: string;
  period: string;
  figures: SummaryFigure[];
}

export interface GoalWeightCard {
  title: string;
  remaining: string;
  current: string;
  currentLabel: string;
  goal: string;
  goalLabel: string;
  trend: string;
  trendFigure: string;
  afterFigure: string;
  outlook: string;
  button: string;
  fraction: number | null;
}

export interface BadgeFigure {
  threshold: number;
  number: string;
  isEarned: boolean;
  label: string;
  progress: string;
  fraction: number;
}

export interface BadgesCard {
  title: string;
  milestone: BadgeFigure;
  streak: BadgeFigure;
}

export interface TimeRangeCard {
  title: string;
  prompt: string;
  selected: string;
  options: string[];
  selectedIndex: number;
}

export interface DayBarsCard {
  title: string;
  empty: string;
}

export interface WeightChartCard {
  title: string;
  averageLabel: string;
  empty: string;
}

export interface WeightFastingChartCard {
  title: string;
  weightLegend: string;
  fastingLegend: string;
  empty: string;
}

export interface ZoneTrendDisplay {
  averageFastTimeRangeText: string;
  thisTimeRangeAvg: string;
  lastTimeRangeAvg: string;
  thisTimeRangeFraction: number;
  lastTimeRangeFraction: number;
  thisTimeRangeInsideCapsule: boolean;
  lastTimeRangeInsideCapsule: boolean;
}

export interface TrendCard extends ZoneTrendDisplay {
  zone: Zone;
  section: string;
  name: string;
  total: string;
  detail: string;
  thisLabel: string;
  lastLabel: string;
  perDay: string;
}

export interface AddWeightForm {
  fieldText: string;
  unit: string;
  dateText: string;
  dateTitle: string;
  date: number;
  problem: string;
  isSaving: boolean;
}

export interface GoalWeightSheet {
  title: string;
  fieldText: string;
  unit: string;
  problem: string;
  save: string;
  remove: string;
}

export interface DonationChoice {
  id: string;
  price: string;
  spoken: string;
  isChosen: boolean;
}

export interface DonationGroup {
  label: string;
  choices: DonationChoice[];
}

export interface DonationsPage {
  title: string;
  text: string;
  groups: DonationGroup[];
  failure: string;
  button: string;
  close: string;
}

export interface BadgeItem {
  threshold: number;
  isEarned: boolean;
  number: string;
  label: string;
}

export interface BadgeFamilyPage {
  title: string;
  count: string;
  countLabel: string;
  remaining: string;
  allLabel: string;
  spoken: string;
  fraction: number;
  present: BadgeItem;
  all: BadgeItem[];
  around: BadgeItem[];
}

export interface BadgesPage {
  title: string;
  milestones: BadgeFamilyPage;
  streaks: BadgeFamilyPage;
  list: BadgeList | null;
}

export interface RoadmapFilter {
  name: string;
  status: string | null;
  isChosen: boolean;
}

export interface RoadmapItem {
  id: string;
  title: string;
  text: string;
  status: string;
  statusName: string;
  hasVotes: boolean;
  count: string;
  spokenVote: string;
  isOpen: boolean;
  isVoted: boolean;
}

export interface RoadmapNotice {
  hasFailed: boolean;
  title: string;
  text: string;
  button: string;
}

export interface RoadmapPage {
  title: string;
  filters: RoadmapFilter[];
  unsentVote: string;
  isLoading: boolean;
  notice: RoadmapNotice;
  items: RoadmapItem[];
  footer: string;
}

export interface FeedbackSheet {
  title: string;
  ideaLabel: string;
  replyLabel: string;
  replyPlaceholder: string;
  note: string;
  button: string;
}

export interface Fact {
  title: string;
  value: string;
}

export interface AboutPage {
  title: string;
  note: string;
  facts: Fact[];
  librariesTitle: string;
  libraries: Fact[];
}

export interface BackupRow {
  date: string;
  counts: string;
  isReadable: boolean;
  spoken: string;
}

export interface BackupsPage {
  title: string;
  button: string;
  isBusy: boolean;
  listTitle: string;
  rows: BackupRow[];
  folderLabel: string;
  folder: string;
  changeLabel: string;
  usualLabel: string;
  fault: string;
  note: string;
}

export interface RestoreSheet {
  title: string;
  text: string;
  presentLabel: string;
  present: string;
  backupLabel: string;
  backup: string;
  fault: string;
  button: string;
  cancelLabel: string;
  isBusy: boolean;
}

export interface CardSwitch {
  title: string;
  hours: string;
  meaning: string;
  isShown: boolean;
}

export interface CardSettingsPage {
  title: string;
  cardsTitle: string;
  chartsTitle: string;
  trendsTitle: string;
  cards: CardSwitch[];
  charts: CardSwitch[];
  trends: CardSwitch[];
  streaksTitle: string;
  streaksNote: string;
  counted: Choice;
  countsBelowGoalLabel: string;
  countsBelowGoal: boolean;
  longestBreak: Steps;
}

export interface ControlWords {
  fasting: string;
  statistics: string;
  settings: string;
  close: string;
  back: string;
  less: string;
  more: string;
  chart: string;
  copyValue: string;
  showAsTable: string;
  cannotOpen: string;
  tryAgain: string;
  restoreNewest: string;
  beginAnew: string;
  damagedIsKept: string;
}

export interface DateTimeChoice {
  instant: number;
  today: number;
  text: string;
  dayCount: number;
  todayPlace: number;
  day: number;
  hour: number;
  minute: number;
  daySpoken: string;
  hourSpoken: string;
  minuteSpoken: string;
  doneLabel: string;
  typeLabel: string;
  typed: string;
  typedProblem: string;
}

export interface ExportRow {
  title: string;
  note: string;
  fileName: string;
  ending: string;
  filter: string;
}

export interface ExportSheet {
  title: string;
  text: string;
  rows: ExportRow[];
  weightsLabel: string;
  printsWeights: boolean;
}

export interface FastSheet {
  title: string;
  isNew: boolean;
  start: number;
  end: number;
  startLabel: string;
  startText: string;
  startSpoken: string;
  startProblem: string;
  endLabel: string;
  endText: string;
  endSpoken: string;
  endProblem: string;
  lengthLabel: string;
  length: string;
  lengthSpoken: string;
  seconds: number;
  overlap: string;
  goalSeconds: number;
  goalProblem: string;
  noteLabel: string;
  note: string;
  noteProblem: string;
  zonesLabel: string;
  zones: ZoneTimeText[];
  failure: string;
  saveLabel: string;
  removeLabel: string;
  severalLabel: string;
}

export interface ZoneTimeText {
  zone: Zone;
  name: string;
  duration: string;
  spoken: string;
  isPresent: boolean;
}

export interface RingMark {
  seconds: number;
  text: string;
}

export interface FastingPage {
  isRunning: boolean;
  isEating: boolean;
  title: string;
  status: string;
  elapsed: string;
  duration: string;
  zone: Zone;
  zoneName: string;
  goalText: string;
  invitation: string;
  invitationDetail: string;
  warning: string;
  zones: ZoneTimeText[];
  startLabel: string;
  startText: string;
  startSpoken: string;
  goalLabel: string;
  goal: string;
  goalSpoken: string;
  button: string;
  spoken: string;
  goalSeconds: number;
  goals: GoalOffer[];
  started: number | null;
  ringSeconds: number;
  ringSpan: number;
  marks: RingMark[];
}

export interface GoalOffer {
  seconds: number;
  text: string;
  isChosen: boolean;
}

export interface GoalChoice {
  title: string;
  seconds: number;
  offers: GoalOffer[];
  customText: string;
  isTyped: boolean;
  fieldText: string;
  unit: string;
  example: string;
  hint: string;
  typed: string;
  problem: string;
  canSave: boolean;
  saveLabel: string;
}

export interface HealthSheet {
  title: string;
  text: string;
  fault: string;
  progress: number;
  chooseLabel: string;
  unlinkLabel: string;
  closeLabel: string;
}

export interface HistoryRow {
  date: string;
  times: string;
  length: string;
  goal: string;
  seconds: number;
  goalFraction: number;
  note: string;
  overlap: string;
  spoken: string;
}

export interface HistoryMonth {
  name: string;
  fasts: string;
  row: number;
}

export interface HistoryPage {
  title: string;
  addLabel: string;
  note: string;
  count: number;
  scaleSeconds: number;
  menuTitle: string;
  editLabel: string;
  removeLabel: string;
  monthsLabel: string;
  hasMonths: boolean;
}

export interface ImportFileRow {
  name: string;
  summary: string;
  notes: string;
  spoken: string;
}

export interface RefusedRow {
  place: string;
  reason: string;
  spoken: string;
}

export interface ImportSheet {
  title: string;
  text: string;
  fault: string;
  progress: number;
  answers: string[];
  files: ImportFileRow[];
  refusedTitle: string;
  refused: RefusedRow[];
  moreRefused: string;
  button: string;
  isBusy: boolean;
  chooseLabel: string;
  cancelLabel: string;
  takesFiles: boolean;
  dropLabel: string;
}

export interface Message {
  text: string;
  button: string;
  isFailure: boolean;
  seconds: number;
}

export interface OpenScreens {
  tab: string;
  page: string;
  sheet: string;
}

export interface RemindersPage {
  title: string;
  goalLabel: string;
  eatingWindowLabel: string;
  tellsGoal: boolean;
  tellsEatingWindow: boolean;
  eatingWindow: Choice;
  note: string;
}

export interface RepairRow {
  date: string;
  kind: string;
  before: string;
  after: string;
  spoken: string;
}

export interface RepairSheet {
  title: string;
  summary: string;
  rows: RepairRow[];
  button: string;
  cancelLabel: string;
}

export interface Choice {
  title: string;
  options: string[];
  chosen: number;
  value: string;
}

export interface Steps {
  title: string;
  value: number;
  least: number;
  most: number;
  step: number;
}

export interface SettingsPage {
  title: string;
  cardsLabel: string;
  general: string;
  goalLabel: string;
  goal: string;
  goalSeconds: number;
  weightUnit: Choice;
  firstWeekday: Choice;
  language: Choice;
  appearance: Choice;
  textSize: Steps;
  reducedMotionLabel: string;
  reducesMotion: boolean;
  data: string;
  importLabel: string;
  healthLabel: string;
  linkedHealth: string;
  exportLabel: string;
  backupsLabel: string;
  newestBackup: string;
  dataNote: string;
  aboutLabel: string;
  version: string;
}

export interface SeveralFastsSheet {
  title: string;
  text: string;
  fieldLabel: string;
  hint: string;
  summary: string;
  fault: string;
  refusedTitle: string;
  refused: RefusedRow[];
  moreRefused: string;
  button: string;
  canAdd: boolean;
  isBusy: boolean;
  cancelLabel: string;
}

export interface WeightRow {
  date: string;
  time: string;
  weight: string;
  spoken: string;
}

export interface WeightsPage {
  openLabel: string;
  title: string;
  note: string;
  count: number;
  menuTitle: string;
  editLabel: string;
  saveLabel: string;
  removeLabel: string;
}

export interface TrendsCard {
  title: string;
  rows: TrendCard[];
}

interface CardContents {
  tip: NoticeCard;
  start: NoticeCard;
  configure: NoticeCard;
  summary: SummaryCard;
  overlappingFasts: NoticeCard;
  donation: NoticeCard;
  roadmap: NoticeCard;
  healthData: NoticeCard;
  addWeight: NoticeCard;
  goalWeight: GoalWeightCard;
  badges: BadgesCard;
  timeRange: TimeRangeCard;
  fastingChart: DayBarsCard;
  eatingChart: DayBarsCard;
  weightChart: WeightChartCard;
  weightFastingChart: WeightFastingChartCard;
  trend: TrendsCard;
}
export type CardKind = keyof CardContents;
export type ShownCard = { [Kind in CardKind]: { kind: Kind; sixths: number[]; content: CardContents[Kind] } }[CardKind];

export interface StatisticsPage {
  cards: ShownCard[];
}

export interface AxisText {
  value: number;
  text: string;
}

export interface TableRow {
  date: string;
  value: string;
}

export interface DayBarRow {
  id: string;
  start: number;
  end: number;
  value: number;
  label: string;
}

export interface PopupViewState {
  popupXOffset: number;
  popupYOffset: number;
  popupLabel: string;
  popupWidth: number;
}

export interface DayBarsPage {
  unit: "day" | "week" | "month";
  count: number;
  maxTime: number;
  hours: AxisText[];
  widestHours: string;
  selected: number | null;
  popup: PopupViewState | null;
  midX: number | null;
  visibleDates: string;
  spokenSelection: string;
}

export interface DateInterval {
  start: number;
  end: number;
}

export interface LinePoint {
  date: number;
  value: number;
}

export interface LineRow {
  count: number;
  scale: number;
  leastSpan: number;
  widestText: string;
  latest: AxisText | null;
}

export interface TimeAxisLabel {
  date: number;
  text: string;
  isPresent: boolean;
  until: number;
}

export interface LineChartPage {
  timeRange: "week" | "month" | "year";
  scrolls: boolean;
  domain: DateInterval;
  visible: DateInterval;
  lines: LineRow[];
  low: number;
  high: number;
  axis: AxisText[];
  labels: TimeAxisLabel[];
  note: string;
  visibleDates: string;
  average: string;
  selection: (LinePoint | null)[];
  selectedDate: string;
  selectedValues: string[];
  spokenSelection: string;
}

export interface DateChoicePage {
  choice: DateTimeChoice;
  isRefused: boolean;
  startProblem: string;
}

export interface MailPage {
  canSend: boolean;
  address: string;
  subject: string;
  body: string;
}

export interface Appearance {
  mode: "system" | "light" | "dark";
  textScale: number;
  reducesMotion: boolean;
}

export interface BrowserWords {
  language: string;
  isRightToLeft: boolean;
  insecure: string;
  cannotKeep: string;
  elsewhere: string;
  useHere: string;
  update: string;
  restart: string;
  closeOthers: string;
  storage: string;
  isKept: string;
  mayBeDeleted: string;
  keep: string;
  isNotKept: string;
  install: string;
  wholeDatabase: string;
  databaseNote: string;
  remindersNote: string;
  cannotNotify: string;
}

export interface DueReminder {
  id: string;
  due: number;
  title: string;
  sentence: string;
}

// SPDX-License-Identifier: MIT
pragma Singleton

// Every colour, length and duration of the screens. Colour means data, ink means action: fasting, eating, weight and the
// zones own one each.
import QtQuick

QtObject {
    id: root

    /// Set by the window: the chosen appearance, the text size, whether motion is wanted.
    property bool dark: false
    property real textScale: 1
    property bool reducedMotion: false

    readonly property color background: dark ? "#0E0E12" : "#F3F2EE"
    readonly property color card: dark ? "#1A1A20" : "#FFFFFF"
    readonly property color cardPressed: dark ? "#212128" : "#F7F6F3"
    readonly property color field: dark ? "#25252D" : "#F3F2EE"
    readonly property color fill: dark ? "#2A2A33" : "#ECEAE5"
    readonly property color fillPressed: dark ? "#363640" : "#E0DDD6"
    readonly property color hairline: dark ? "#2D2D36" : "#E4E1DA"
    readonly property color gridline: dark ? "#2A2A32" : "#ECEAE4"
    readonly property color gridlineStrong: dark ? "#45454F" : "#D5D1C8"
    readonly property color controlBorder: dark ? "#7F7D8A" : "#8E8B84"
    readonly property color ink: dark ? "#F3F2F6" : "#1A1922"
    readonly property color inkSecondary: dark ? "#B3B1BD" : "#5A5863"
    readonly property color inkTertiary: dark ? "#9694A1" : "#66646E"
    readonly property color inkDisabled: dark ? "#5F5E69" : "#A5A2AB"
    readonly property color inverse: dark ? "#F3F2F6" : "#1A1922"
    readonly property color textOnInverse: dark ? "#1A1922" : "#FFFFFF"
    readonly property color textOnInverseSecondary: dark ? "#55535E" : "#C9C7D1"
    readonly property color action: dark ? "#F3F2F6" : "#1A1922"
    readonly property color actionPressed: dark ? "#CFCDD6" : "#3A3844"
    readonly property color textOnAction: dark ? "#1A1922" : "#FFFFFF"
    readonly property color focus: dark ? "#F3F2F6" : "#1A1922"
    readonly property color caution: dark ? "#F2BF6B" : "#8A5200"
    readonly property color cautionFill: dark ? "#33291A" : "#FBF0DC"
    readonly property color danger: dark ? "#FF9A91" : "#B3261E"
    readonly property color dangerFill: dark ? "#3A2120" : "#FBE9E7"
    readonly property color segment: dark ? "#4A4A55" : "#FFFFFF"
    readonly property color grabber: dark ? "#4A4A55" : "#E4E1DA"
    readonly property color scrim: dark ? "#99000000" : "#66121118"

    readonly property Accent fasting: Accent {
        fill: root.dark ? "#8B9BFE" : "#4445D2"
        text: root.dark ? "#99AAFF" : "#4345C9"
        tint: root.dark ? "#333651" : "#E1E1F8"
        textOnFill: root.dark ? "#1A1922" : "#FFFFFF"
        barTop: root.dark ? "#99A7FE" : "#6263D9"
        barDim: root.dark ? "#474E79" : "#BFC0F0"
    }
    readonly property Accent eating: Accent {
        fill: root.dark ? "#F5965E" : "#D8670E"
        text: root.dark ? "#F6A06E" : "#AF4800"
        tint: root.dark ? "#4A352E" : "#F9E7D8"
        textOnFill: root.dark ? "#1A1922" : "#1A1922"
        barTop: root.dark ? "#F6A371" : "#DE7F35"
        barDim: root.dark ? "#724C39" : "#F2CBAD"
    }
    readonly property Accent weight: Accent {
        fill: root.dark ? "#53D6CA" : "#008278"
        text: root.dark ? "#64D3C9" : "#007068"
        tint: root.dark ? "#274345" : "#D6EBE9"
        textOnFill: root.dark ? "#1A1922" : "#FFFFFF"
        barTop: root.dark ? "#68DBD0" : "#29968E"
        barDim: root.dark ? "#316564" : "#A8D5D1"
    }
    readonly property Accent anabolic: Accent {
        fill: root.dark ? "#7CC7FB" : "#259CDE"
        text: root.dark ? "#84C6F5" : "#0067A3"
        tint: root.dark ? "#304050" : "#DCEFFA"
        textOnFill: root.dark ? "#1A1922" : "#1A1922"
        barTop: root.dark ? "#8CCEFB" : "#48ACE3"
        barDim: root.dark ? "#415F78" : "#B5DDF4"
    }
    readonly property Accent catabolic: Accent {
        fill: root.dark ? "#29AF77" : "#008756"
        text: root.dark ? "#62CD98" : "#007043"
        tint: root.dark ? "#1D3B33" : "#D6ECE4"
        textOnFill: root.dark ? "#1A1922" : "#FFFFFF"
        barTop: root.dark ? "#43B987" : "#299A71"
        barDim: root.dark ? "#205643" : "#A8D6C6"
    }
    readonly property Accent fatBurning: Accent {
        fill: root.dark ? "#FACA59" : "#BD8C00"
        text: root.dark ? "#F6CB69" : "#875A00"
        tint: root.dark ? "#4B412D" : "#F4EDD6"
        textOnFill: root.dark ? "#1A1922" : "#1A1922"
        barTop: root.dark ? "#FBD06D" : "#C89E29"
        barDim: root.dark ? "#746037" : "#E9D8A8"
    }
    readonly property Accent ketosis: Accent {
        fill: root.dark ? "#F98394" : "#D13D5E"
        text: root.dark ? "#FF93A1" : "#B72B4D"
        tint: root.dark ? "#4B313A" : "#F8E0E5"
        textOnFill: root.dark ? "#1A1922" : "#FFFFFF"
        barTop: root.dark ? "#FA92A1" : "#D85C78"
        barDim: root.dark ? "#73444E" : "#EFBDC8"
    }
    readonly property Accent deepKetosis: Accent {
        fill: root.dark ? "#BB65CF" : "#752586"
        text: root.dark ? "#E091F2" : "#732984"
        tint: root.dark ? "#3D2B47" : "#E9DCEC"
        textOnFill: root.dark ? "#1A1922" : "#FFFFFF"
        barTop: root.dark ? "#C377D5" : "#8B4899"
        barDim: root.dark ? "#5A3866" : "#D0B5D6"
    }

    // Sizes and line heights follow the text scale; chart heights and bars never do.
    readonly property TextStyle timerText: TextStyle { family: root.displayFamily; size: 44; line: 52; weight: 600; spacing: -1; unit: 20 }
    readonly property TextStyle titleText: TextStyle { family: root.displayFamily; size: 34; line: 40; weight: 700; spacing: -0.6 }
    readonly property TextStyle titleWideText: TextStyle { family: root.displayFamily; size: 28; line: 32; weight: 700; spacing: -0.6 }
    readonly property TextStyle numberLargeText: TextStyle { family: root.displayFamily; size: 34; line: 40; weight: 600; spacing: -0.4; unit: 20 }
    readonly property TextStyle numberText: TextStyle { family: root.displayFamily; size: 28; line: 32; weight: 600; spacing: -0.4; unit: 17 }
    readonly property TextStyle numberSmallText: TextStyle { family: root.displayFamily; size: 22; line: 28; weight: 600; spacing: -0.4; unit: 15 }
    readonly property TextStyle numberRowText: TextStyle { family: root.displayFamily; size: 17; line: 24; weight: 600; spacing: -0.1; unit: 13 }
    readonly property TextStyle sectionText: TextStyle { family: root.displayFamily; size: 22; line: 28; weight: 600; spacing: -0.2 }
    readonly property TextStyle headlineText: TextStyle { family: root.textFamily; size: 17; line: 24; weight: 600; spacing: -0.1 }
    readonly property TextStyle bodyText: TextStyle { family: root.textFamily; size: 15; line: 22; weight: 400; spacing: 0 }
    readonly property TextStyle bodyStrongText: TextStyle { family: root.textFamily; size: 15; line: 22; weight: 600; spacing: 0 }
    readonly property TextStyle buttonText: TextStyle { family: root.textFamily; size: 15; line: 22; weight: 600; spacing: 0 }
    readonly property TextStyle buttonLargeText: TextStyle { family: root.textFamily; size: 17; line: 24; weight: 600; spacing: 0 }
    readonly property TextStyle valueText: TextStyle { family: root.textFamily; size: 13; line: 18; weight: 600; spacing: 0 }
    readonly property TextStyle labelText: TextStyle { family: root.textFamily; size: 13; line: 18; weight: 400; spacing: 0 }
    readonly property TextStyle captionText: TextStyle { family: root.textFamily; size: 12; line: 16; weight: 400; spacing: 0 }
    readonly property TextStyle axisText: TextStyle { family: root.textFamily; size: 11; line: 14; weight: 500; spacing: 0 }
    readonly property TextStyle axisStrongText: TextStyle { family: root.textFamily; size: 11; line: 14; weight: 600; spacing: 0 }
    readonly property TextStyle tabText: TextStyle { family: root.textFamily; size: 11; line: 14; weight: 500; spacing: 0 }
    readonly property TextStyle tabOnText: TextStyle { family: root.textFamily; size: 11; line: 14; weight: 600; spacing: 0 }

    readonly property string textFamily: "Inter"
    readonly property string displayFamily: "Inter Display"

    readonly property int pageMargin: 16
    readonly property int pageMarginWide: 24
    readonly property int cardPadding: 16
    readonly property int cardGap: 12
    readonly property int cardGapWide: 16
    readonly property int sectionTop: 20
    readonly property int cardRadius: 20
    readonly property int sheetRadius: 24
    readonly property int controlRadius: 14
    readonly property int segmentRadius: 10
    readonly property int tileRadius: 12
    readonly property int popupRadius: 10
    readonly property int chipRadius: 18
    readonly property int capsuleRadius: 13
    readonly property int swatchRadius: 3
    readonly property int barTopRadius: 8
    readonly property int barBottomRadius: 3
    readonly property int trackRadius: 3
    readonly property int touchSize: 44
    readonly property int buttonSize: 48
    readonly property int buttonLargeSize: 56
    readonly property int sheetButtonSize: 52
    readonly property int fieldSize: 48
    readonly property int segmentedSize: 44
    readonly property int rowSize: 48
    readonly property int tabBarSize: 64
    readonly property int titleBarSize: 72
    readonly property int pushBarSize: 56
    readonly property int stickyRangeSize: 60
    /// No card is lower, with its gap.
    readonly property int lowestCard: 88
    readonly property int sideBarSize: 216
    readonly property int tileSize: 40
    readonly property int iconSize: 24
    readonly property int iconInTileSize: 22
    readonly property int chipSize: 36
    readonly property int switchWidthSize: 48
    readonly property int switchHeightSize: 28
    readonly property int switchKnobSize: 22
    readonly property int voteWidthSize: 56
    readonly property int voteHeightSize: 64
    readonly property int swatchSize: 10
    readonly property int capsuleSize: 26
    readonly property int capsuleLabelSize: 72
    readonly property int hairlineSize: 1
    readonly property int focusRingSize: 2
    readonly property int focusOffsetSize: 2
    readonly property int grabberWidthSize: 36
    readonly property int grabberHeightSize: 4
    readonly property int narrowWidth: 360
    readonly property int twoColumnsWidth: 600
    readonly property int sideBarWidth: 900
    readonly property int contentMaxWidth: 1200
    readonly property int pressDuration: reducedMotion ? 0 : 80
    readonly property int selectDuration: reducedMotion ? 0 : 160
    readonly property int segmentDuration: reducedMotion ? 0 : 180
    readonly property int rangeFadeDuration: reducedMotion ? 0 : 180
    readonly property int barDuration: reducedMotion ? 0 : 240
    readonly property int pushDuration: reducedMotion ? 0 : 240
    readonly property int sheetDuration: reducedMotion ? 0 : 280
    readonly property int ringDuration: reducedMotion ? 0 : 400

    /// Of the five zones, in their order.
    readonly property list<color> zoneFills: [anabolic.fill, catabolic.fill, fatBurning.fill, ketosis.fill, deepKetosis.fill]
    readonly property list<color> zoneTints: [anabolic.tint, catabolic.tint, fatBurning.tint, ketosis.tint, deepKetosis.tint]

    function accentOf(zone: string): Accent {
        switch (zone) {
        case "fasting":
            return root.fasting;
        case "eating":
            return root.eating;
        case "weight":
            return root.weight;
        case "anabolic":
            return root.anabolic;
        case "catabolic":
            return root.catabolic;
        case "fatBurning":
            return root.fatBurning;
        case "ketosis":
            return root.ketosis;
        default:
            return root.deepKetosis;
        }
    }

    /// A line's colour where it stands on an inverse surface: that of the other appearance.
    readonly property color weightOnInverse: dark ? "#008278" : "#53D6CA"
    readonly property color fastingOnInverse: dark ? "#4445D2" : "#8B9BFE"

    /// For charts, whose room does not grow with the text: up to one and a half times the size.
    function fontOf(style: TextStyle): font {
        return Qt.font({
            family: style.family,
            pixelSize: Math.round(style.size * Math.min(textScale, 1.5)),
            weight: style.weight
        });
    }
}

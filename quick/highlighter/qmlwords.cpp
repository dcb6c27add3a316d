// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "quick/highlighter/qmlwords.h"

#include <QHash>

namespace {

constexpr char keywordsText[] =
    "break case catch continue default delete do double else finally for function if import in int "
    "instanceof new on property real return signal string switch this throw try typeof var variant void "
    "while with true false null";

constexpr char knownIdsText[] =
    "Object prototype create defineProperty defineProperties getOwnPropertyDescriptor keys "
    "getOwnPropertyNames constructor __parent__ __proto__ __defineGetter__ __defineSetter__ eval "
    "hasOwnProperty isPrototypeOf __lookupGetter__ __lookupSetter__ __noSuchMethod__ propertyIsEnumerable "
    "toSource toLocaleString toString unwatch valueOf watch Function arguments arity caller name apply "
    "bind call String fromCharCode charAt charCodeAt concat indexOf lastIndexOf localCompare match quote "
    "replace search slice split substr substring toLocaleLowerCase toLocaleUpperCase toLowerCase "
    "toUpperCase trim trimLeft trimRight Array isArray input pop push reverse shift sort splice unshift "
    "join filter forEach every map some reduce reduceRight RegExp global ignoreCase lastIndex multiline "
    "exec test JSON parse stringify navigator userAgent XMLHttpRequest Qt event decodeURI "
    "decodeURIComponent encodeURI encodeURIComponent isFinite isNaN parseFloat parseInt Infinity NaN "
    "undefined Math E LN2 LN10 LOG2E LOG10E PI SQRT1_2 SQRT2 abs acos asin atan atan2 ceil cos exp floor "
    "log max min pow random round sin sqrt tan";

constexpr char qmlTypesText[] =
    "Date Number String Component QtObject Locale Binding Connections Instantiator Timer Item Rectangle "
    "Image BorderImage AnimatedImage AnimatedSprite SpriteSequence Text Accessible Gradient GradientStop "
    "SystemPalette Sprite FontLoader Repeater Loader Transform Scale Rotation Translate MouseArea Keys "
    "KeyNavigation FocusScope Flickable PinchArea MultiPointTouchArea Drag DropArea TextInput TextEdit "
    "IntValidator DoubleValidator RegExpValidator TouchPoint PinchEvent WheelEvent MouseEvent KeyEvent "
    "DragEvent Positioner Column Row Grid Flow LayoutMirroring State PropertyChanges StateGroup "
    "StateChangeScript ParentChange AnchorChanges Transition ViewTransition SequentialAnimation "
    "ParallelAnimation Behavior PropertyAction PauseAnimation SmoothedAnimation SpringAnimation "
    "ScriptAction Animation PropertyAnimation NumberAnimation Vector3dAnimation ColorAnimation "
    "RotationAnimation ParentAnimation AnchorAnimation PathAnimation PathInterpolator AnimationController "
    "Path PathLine PathQuad PathCubic PathArc PathCurve PathSvg PathAttribute PathPercent ListView "
    "GridView PathView Package Flipable ShaderEffect ShaderEffectSource GridMesh WorkerScript Canvas "
    "Context2D CanvasGradient CanvasPixelArray CanvasImageData TextMetrics BasicImage BasicText "
    "BasicVideo BasicRectangle Carousel CartaMenu DigitalClock GridOrganizer Item1 KImage Fireworks "
    "LiveImage LiveText Schedule Slide Slideshow Weather WeatherForecast Twitter Flickr Rss MenuSlideshow "
    "BasicButton BasicWebView ActionButton Button CheckBox CustomBuzyInd FileBrowser FontAwesomeIcon "
    "ImageScope Input Label QMLTextArea Radio RadioGroup RoundedImage RoundedThumbnail TextArea "
    "TextToolBar Thumbnail Blend BrightnessContrast ColorOverlay Colorize ConicalGradient Desaturate "
    "DirectionalBlur Displace DropShadow FastBlur GammaAdjust GaussianBlur Glow HueSaturation InnerShadow "
    "LevelAdjust LinearGradient MaskedBlur OpacityMask RadialBlur RadialGradient RectangularGlow "
    "RecursiveBlur ThresholdMask ZoomBlur FolderListModel XmlListModel XmlRole DelegateModel "
    "DelegateModelGroup ListModel ListElement ObjectModel LocalStorage Screen Window CloseEvent Age "
    "AngleDirection CumulativeDirection CustomParticle Direction EllipseShape Friction Gravity GroupGoal "
    "ImageParticle ItemParticle LineShape MaskShape Affector Emitter Shape ParticleGroup ParticlePainter "
    "ParticleSystem Attractor PointDirection RectangleShape SpriteGoal TargetDirection TrailEmitter "
    "Turbulence Particle Wander ApplicationWindow ComboBox GroupBox Menu MenuBar ProgressBar RadioButton "
    "ScrollView Slider SpinBox SplitView StackView StackViewDelegate StatusBar Tab TabView TableView "
    "TableViewColumn TextField ToolBar ToolButton Action ExclusiveGroup MenuSeparator MenuItem Stack "
    "ButtonStyle CheckBoxStyle ComboBoxStyle ProgressBarStyle RadioButtonStyle ScrollViewStyle "
    "SliderStyle TabViewStyle TableViewStyle TextFieldStyle ColorDialog FileDialog Layout RowLayout "
    "ColumnLayout GridLayout Viewport Item3D Rotation3D Scale3D Sphere Cube Mesh Camera";

constexpr char qmlPropertiesText[] =
    "id objectName anchors centerIn fill fillWidth fillHeight spacing left right top bottom leftMargin "
    "rightMargin topMargin bottomMargin margins minimumWidth maximumWidth minimumHeight maximumHeight z "
    "width height rotation gradient opacity visible clip antialiasing color scale from to duration loops "
    "radius running repeat interval source enabled active text font Keys onClicked onPressed onReleased "
    "onCompleted onTriggered onTouchUpdated onPaint triggeredOnStart model delegate horizontalAlignment "
    "verticalAlignment system group groups emitRate lifeSpan acceleration xVariation yVariation size "
    "sizeVariation endSize wrapMode wordWrap showDirs showDirsFirst showDotAndDotDot folder "
    "maximumTouchPoints transform hoverEnabled fragmentShader vertexShader status effect levelOfDetail "
    "angle axis mesh camera eye texture fillColor decal renderMode picking useLighting position "
    "sortChildren navigation scaleFactor transformOrigin fillMode border";

QSet<QString> wordSet(const char* text)
{
    const QStringList words = QString::fromLatin1(text).split(QLatin1Char(' '));
    return QSet<QString>(words.cbegin(), words.cend());
}

using WordClasses = QHash<QStringView, TokenClass>;

/// The keys refer to the strings of `words`.
void insertWords(WordClasses& classes, const QSet<QString>& words, TokenClass kind)
{
    for (const QString& word : words)
        classes.insert(word, kind);
}

/// The sets in reverse order, so that the first one that holds a word stays.
WordClasses wordClasses(const QmlWords& words)
{
    WordClasses classes;
    insertWords(classes, words.qmlProperties, TokenClass::Property);
    insertWords(classes, words.qmlTypes, TokenClass::Type);
    insertWords(classes, words.knownIds, TokenClass::BuiltIn);
    insertWords(classes, words.keywords, TokenClass::Keyword);
    return classes;
}

} // namespace

const QmlWords& QmlWords::instance()
{
    static const QmlWords words{wordSet(keywordsText), wordSet(knownIdsText), wordSet(qmlTypesText),
                                wordSet(qmlPropertiesText)};
    return words;
}

TokenClass classifyWord(QStringView word)
{
    static const WordClasses classes = wordClasses(QmlWords::instance());
    return classes.value(word, TokenClass::Plain);
}

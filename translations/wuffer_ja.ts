<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>About Wuffer</source>
        <translation>Wuffer について</translation>
    </message>
    <message>
        <source>Countdown timers for the desktop</source>
        <translation>デスクトップのカウントダウンタイマー</translation>
    </message>
    <message>
        <source>Copyright © 2026 The Wuffer developers
Free software under the MIT License: use it, change it
and pass it on. It comes without any warranty.</source>
        <translation>Copyright © 2026 The Wuffer developers
MIT ライセンスのフリーソフトウェアです。
自由に使用、変更、再配布できます。一切の保証はありません。</translation>
    </message>
    <message>
        <source>Libraries and their licenses</source>
        <translation>ライブラリとそのライセンス</translation>
    </message>
</context>
<context>
    <name>AboutDialog</name>
    <message>
        <source>sound output</source>
        <extracomment>What a library is used for.</extracomment>
        <translation>サウンド出力</translation>
    </message>
    <message>
        <source>sound files</source>
        <translation>サウンドファイル</translation>
    </message>
    <message>
        <source>MP3 files</source>
        <translation>MP3 ファイル</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>windows</source>
        <extracomment>What a library is used for.</extracomment>
        <translation>ウィンドウ</translation>
    </message>
    <message>
        <source>X Window System</source>
        <translation>X Window System</translation>
    </message>
    <message>
        <source>windows, session bus</source>
        <extracomment>What a library is used for.</extracomment>
        <translation>ウィンドウ、セッションバス</translation>
    </message>
</context>
<context>
    <name>AlarmAnnouncement</name>
    <message>
        <source>Alarm ended</source>
        <extracomment>Screen readers say it after the name of a timer.</extracomment>
        <translation>アラームが終わりました</translation>
    </message>
</context>
<context>
    <name>Chain</name>
    <message>
        <source>Wuffer Chain - %1 of %2</source>
        <extracomment>The place of a timer in a chain: position and number of timers.</extracomment>
        <translation>Wuffer チェーン - %1/%2</translation>
    </message>
    <message>
        <source>Started by “%1”</source>
        <extracomment>Names of timers.</extracomment>
        <translation>「%1」の終了後に開始</translation>
    </message>
    <message>
        <source>Starts “%1”</source>
        <translation>次に「%1」を開始</translation>
    </message>
    <message>
        <source>Started by “%1”; starts “%2”</source>
        <translation>「%1」の終了後に開始、次に「%2」を開始</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Countdown timers for the desktop. If the program is already running, it carries out what is asked for here.</source>
        <translation>デスクトップのカウントダウンタイマー。Wuffer がすでに実行中の場合は、そのプログラムが指定された操作を行います。</translation>
    </message>
    <message>
        <source>Wait for the session bus to say what to open.</source>
        <translation>セッションバス経由で、何を開くかの指示を待ちます。</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>このヘルプを表示します。</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>バージョンを表示します。</translation>
    </message>
    <message>
        <source>Unexpected argument “%1”.</source>
        <translation>引数「%1」は指定できません。</translation>
    </message>
    <message>
        <source>Open a new timer.</source>
        <translation>新しいタイマーを開きます。</translation>
    </message>
    <message>
        <source>Start every timer.</source>
        <translation>すべてのタイマーを開始します。</translation>
    </message>
    <message>
        <source>Show the preferences.</source>
        <translation>設定を表示します。</translation>
    </message>
    <message>
        <source>Show the unit converter.</source>
        <translation>単位換算を表示します。</translation>
    </message>
</context>
<context>
    <name>Converter</name>
    <message>
        <source>Volume (US measures)</source>
        <translation>容量 (米国の単位)</translation>
    </message>
    <message>
        <source>&amp;Milliliters:</source>
        <translation>ミリリットル(&amp;M):</translation>
    </message>
    <message>
        <source>Milliliters</source>
        <translation>ミリリットル</translation>
    </message>
    <message>
        <source>F&amp;luid ounces:</source>
        <translation>液量オンス(&amp;L):</translation>
    </message>
    <message>
        <source>Fluid ounces</source>
        <translation>液量オンス</translation>
    </message>
    <message>
        <source>&amp;Cups:</source>
        <translation>カップ(&amp;C):</translation>
    </message>
    <message>
        <source>Cups</source>
        <translation>カップ</translation>
    </message>
    <message>
        <source>Ta&amp;blespoons:</source>
        <translation>大さじ(&amp;B):</translation>
    </message>
    <message>
        <source>Tablespoons</source>
        <translation>大さじ</translation>
    </message>
    <message>
        <source>T&amp;easpoons:</source>
        <translation>小さじ(&amp;E):</translation>
    </message>
    <message>
        <source>Teaspoons</source>
        <translation>小さじ</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>重さ</translation>
    </message>
    <message>
        <source>&amp;Grams:</source>
        <translation>グラム(&amp;G):</translation>
    </message>
    <message>
        <source>Grams</source>
        <translation>グラム</translation>
    </message>
    <message>
        <source>&amp;Ounces:</source>
        <translation>オンス(&amp;O):</translation>
    </message>
    <message>
        <source>Ounces</source>
        <translation>オンス</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Cel&amp;sius:</source>
        <translation>摂氏(&amp;S):</translation>
    </message>
    <message>
        <source>Celsius</source>
        <translation>摂氏</translation>
    </message>
    <message>
        <source>Fah&amp;renheit:</source>
        <translation>華氏(&amp;R):</translation>
    </message>
    <message>
        <source>Fahrenheit</source>
        <translation>華氏</translation>
    </message>
</context>
<context>
    <name>FinishActions</name>
    <message>
        <source>Do Nothing</source>
        <translation>何もしない</translation>
    </message>
    <message>
        <source>Loop this Wuffer</source>
        <translation>このタイマーを繰り返す</translation>
    </message>
    <message>
        <source>Start a Preset</source>
        <translation>プリセットを開始</translation>
    </message>
    <message>
        <source>Start other open Wuffer</source>
        <translation>開いている別のタイマーを開始</translation>
    </message>
</context>
<context>
    <name>FreedesktopNotifications</name>
    <message>
        <source>Show</source>
        <extracomment>A button of a notification: brings the timer to the front.</extracomment>
        <translation>表示</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>A button of a notification: ends the alarm.</extracomment>
        <translation>停止</translation>
    </message>
</context>
<context>
    <name>GatheredNotifications</name>
    <message numerus="yes">
        <source>%n timers have ended</source>
        <translation>
            <numerusform>%n 個のタイマーが終了しました</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>他 %n 個</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Back</source>
        <extracomment>Goes to the page of the help that was shown before.</extracomment>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Forward</source>
        <extracomment>Goes to the page of the help that was shown after this one.</extracomment>
        <translation>進む</translation>
    </message>
    <message>
        <source>Search the help</source>
        <translation>ヘルプを検索</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Pages</source>
        <extracomment>Accessible name of the list of pages.</extracomment>
        <translation>ページ</translation>
    </message>
</context>
<context>
    <name>HelpPages</name>
    <message>
        <source>en</source>
        <extracomment>The folder with the help pages in your language, such as &quot;de&quot;. Leave &quot;en&quot; if there is none.</extracomment>
        <translation>en</translation>
    </message>
    <message>
        <source>%1 menu</source>
        <extracomment>The title of a table of keys; %1 is the name of a menu.</extracomment>
        <translation>%1メニュー</translation>
    </message>
    <message>
        <source>This help is available in English only.</source>
        <extracomment>Stands above the pages of the help in languages that the help is not translated to.</extracomment>
        <translation>このヘルプは英語でのみ提供されています。</translation>
    </message>
</context>
<context>
    <name>HelpPanel</name>
    <message>
        <source>%1 (%2)</source>
        <extracomment>The title of a page of the help, and how often it has the searched words.</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>The number of the selected place among all places with the searched words.</extracomment>
        <translation>%2 件中 %1 件目</translation>
    </message>
    <message>
        <source>Found: %1</source>
        <translation>%1 件見つかりました</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>見つかりませんでした</translation>
    </message>
</context>
<context>
    <name>Home</name>
    <message>
        <source>New Timer</source>
        <translation>新しいタイマー</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>プリセット</translation>
    </message>
</context>
<context>
    <name>KeepOnTopItem</name>
    <message>
        <source>Keep on &amp;Top</source>
        <translation>常に最前面に表示(&amp;T)</translation>
    </message>
</context>
<context>
    <name>KeepWuffing</name>
    <message>
        <source>A stopwatch has no alarm that could go on</source>
        <translation>ストップウォッチには、鳴き続けるアラームがありません</translation>
    </message>
    <message>
        <source>Only a timer that is to “%1” when finished can go on wuffing</source>
        <extracomment>%1 is the finish action “Do Nothing”.</extracomment>
        <translation>鳴き続けられるのは、終了時の動作が「%1」のタイマーだけです</translation>
    </message>
    <message>
        <source>The sound of all timers is off</source>
        <translation>すべてのタイマーがミュートされています</translation>
    </message>
    <message>
        <source>Repeat the alarm sound until you press %1</source>
        <extracomment>%1 is the title of the button “Reset”.</extracomment>
        <translation>「%1」を押すまでアラーム音を繰り返します</translation>
    </message>
</context>
<context>
    <name>LaunchChoices</name>
    <message>
        <source>Open a Wuffer</source>
        <translation>タイマーを開く</translation>
    </message>
    <message>
        <source>Do Nothing</source>
        <translation>何もしない</translation>
    </message>
    <message>
        <source>Open Preset ⌘1</source>
        <translation>プリセット ⌘1 を開く</translation>
    </message>
    <message>
        <source>Open and Start Preset ⌘1</source>
        <translation>プリセット ⌘1 を開いて開始</translation>
    </message>
</context>
<context>
    <name>LinkMenu</name>
    <message>
        <source>When F&amp;inished, Start</source>
        <translation>終了時に開始するタイマー(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>なし(&amp;N)</translation>
    </message>
    <message>
        <source>No &amp;Other Timer Is Open</source>
        <translation>他に開いているタイマーはありません(&amp;O)</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;New Timer</source>
        <translation>新しいタイマー(&amp;N)</translation>
    </message>
    <message>
        <source>Start &amp;All</source>
        <translation>すべて開始(&amp;A)</translation>
    </message>
    <message>
        <source>Mute All</source>
        <translation>すべてミュート</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>設定(&amp;P)…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Timer</source>
        <translation>タイマー(&amp;T)</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>名前を変更(&amp;N)</translation>
    </message>
    <message>
        <source>Stopwatch</source>
        <translation>ストップウォッチ</translation>
    </message>
    <message>
        <source>Count Down to a &amp;Date…</source>
        <translation>目標日時までカウントダウン(&amp;D)…</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>リセット(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Keep Wuffing</source>
        <translation>鳴き続ける(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>全画面表示(&amp;F)</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>詳細オプション</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>ウィンドウ(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Minimize</source>
        <translation>最小化(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Converter</source>
        <translation>単位換算(&amp;C)</translation>
    </message>
    <message>
        <source>M&amp;easurements</source>
        <translation>計量表(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Wuffer &amp;Help</source>
        <translation>Wuffer ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Wuffer on the &amp;Web</source>
        <translation>Wuffer のウェブページ(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;About Wuffer</source>
        <translation>Wuffer について(&amp;A)</translation>
    </message>
</context>
<context>
    <name>MeasurementsPanel</name>
    <message>
        <source>Kitchen measurements</source>
        <translation>料理の計量表</translation>
    </message>
    <message>
        <source>1 teaspoon|1 tsp|⅓ tbsp|⅙ fl oz|4.93 mL</source>
        <translation>小さじ 1|小さじ 1|大さじ ⅓|⅙ fl oz|4.93 mL</translation>
    </message>
    <message>
        <source>1 tablespoon|3 tsp|1 tbsp|½ fl oz|14.79 mL</source>
        <translation>大さじ 1|小さじ 3|大さじ 1|½ fl oz|14.79 mL</translation>
    </message>
    <message>
        <source>1 fluid ounce|6 tsp|2 tbsp|1 fl oz|29.57 mL</source>
        <translation>1 液量オンス|小さじ 6|大さじ 2|1 fl oz|29.57 mL</translation>
    </message>
    <message>
        <source>¼ cup|12 tsp|4 tbsp|2 fl oz|59.15 mL</source>
        <translation>¼ カップ|小さじ 12|大さじ 4|2 fl oz|59.15 mL</translation>
    </message>
    <message>
        <source>⅓ cup|16 tsp|5⅓ tbsp|2⅔ fl oz|78.86 mL</source>
        <translation>⅓ カップ|小さじ 16|大さじ 5⅓|2⅔ fl oz|78.86 mL</translation>
    </message>
    <message>
        <source>½ cup|24 tsp|8 tbsp|4 fl oz|118.29 mL</source>
        <translation>½ カップ|小さじ 24|大さじ 8|4 fl oz|118.29 mL</translation>
    </message>
    <message>
        <source>⅔ cup|32 tsp|10⅔ tbsp|5⅓ fl oz|157.73 mL</source>
        <translation>⅔ カップ|小さじ 32|大さじ 10⅔|5⅓ fl oz|157.73 mL</translation>
    </message>
    <message>
        <source>¾ cup|36 tsp|12 tbsp|6 fl oz|177.44 mL</source>
        <translation>¾ カップ|小さじ 36|大さじ 12|6 fl oz|177.44 mL</translation>
    </message>
    <message>
        <source>1 cup|48 tsp|16 tbsp|8 fl oz|236.59 mL</source>
        <translation>1 カップ|小さじ 48|大さじ 16|8 fl oz|236.59 mL</translation>
    </message>
    <message>
        <source>1 pint|96 tsp|32 tbsp|16 fl oz|473.18 mL</source>
        <translation>1 パイント|小さじ 96|大さじ 32|16 fl oz|473.18 mL</translation>
    </message>
    <message>
        <source>1 quart|192 tsp|64 tbsp|32 fl oz|946.35 mL</source>
        <translation>1 クォート|小さじ 192|大さじ 64|32 fl oz|946.35 mL</translation>
    </message>
    <message>
        <source>1 gallon|768 tsp|256 tbsp|128 fl oz|3785.41 mL</source>
        <translation>1 ガロン|小さじ 768|大さじ 256|128 fl oz|3785.41 mL</translation>
    </message>
    <message>
        <source>1 metric teaspoon|0.17 fl oz|5 mL</source>
        <translation>小さじ 1 (メートル法)|0.17 fl oz|5 mL</translation>
    </message>
    <message>
        <source>1 metric tablespoon|0.51 fl oz|15 mL</source>
        <translation>大さじ 1 (メートル法)|0.51 fl oz|15 mL</translation>
    </message>
    <message>
        <source>1 Australian tablespoon|0.68 fl oz|20 mL</source>
        <translation>大さじ 1 (オーストラリア)|0.68 fl oz|20 mL</translation>
    </message>
    <message>
        <source>1 Japanese cup|6.76 fl oz|200 mL</source>
        <translation>1 カップ (日本)|6.76 fl oz|200 mL</translation>
    </message>
    <message>
        <source>1 metric cup|8.45 fl oz|250 mL</source>
        <translation>1 カップ (メートル法)|8.45 fl oz|250 mL</translation>
    </message>
    <message>
        <source>1 liter|33.81 fl oz|1000 mL</source>
        <translation>1 リットル|33.81 fl oz|1000 mL</translation>
    </message>
    <message>
        <source>1 UK fluid ounce|0.96 fl oz|28.41 mL</source>
        <translation>1 英液量オンス|0.96 fl oz|28.41 mL</translation>
    </message>
    <message>
        <source>1 UK pint|19.22 fl oz|568.26 mL</source>
        <translation>1 英パイント|19.22 fl oz|568.26 mL</translation>
    </message>
    <message>
        <source>1 UK quart|38.43 fl oz|1136.52 mL</source>
        <translation>1 英クォート|38.43 fl oz|1136.52 mL</translation>
    </message>
    <message>
        <source>1 UK gallon|153.72 fl oz|4546.09 mL</source>
        <translation>1 英ガロン|153.72 fl oz|4546.09 mL</translation>
    </message>
    <message>
        <source>1 ounce|1 oz|0.0625 lb|28.35 g</source>
        <translation>1 オンス|1 oz|0.0625 lb|28.35 g</translation>
    </message>
    <message>
        <source>2 ounces|2 oz|0.125 lb|56.70 g</source>
        <translation>2 オンス|2 oz|0.125 lb|56.70 g</translation>
    </message>
    <message>
        <source>¼ pound|4 oz|0.25 lb|113.40 g</source>
        <translation>¼ ポンド|4 oz|0.25 lb|113.40 g</translation>
    </message>
    <message>
        <source>½ pound|8 oz|0.5 lb|226.80 g</source>
        <translation>½ ポンド|8 oz|0.5 lb|226.80 g</translation>
    </message>
    <message>
        <source>¾ pound|12 oz|0.75 lb|340.19 g</source>
        <translation>¾ ポンド|12 oz|0.75 lb|340.19 g</translation>
    </message>
    <message>
        <source>1 pound|16 oz|1 lb|453.59 g</source>
        <translation>1 ポンド|16 oz|1 lb|453.59 g</translation>
    </message>
    <message>
        <source>2 pounds|32 oz|2 lb|907.18 g</source>
        <translation>2 ポンド|32 oz|2 lb|907.18 g</translation>
    </message>
    <message>
        <source>50 grams|1.76 oz|0.110 lb|50 g</source>
        <translation>50 グラム|1.76 oz|0.110 lb|50 g</translation>
    </message>
    <message>
        <source>100 grams|3.53 oz|0.220 lb|100 g</source>
        <translation>100 グラム|3.53 oz|0.220 lb|100 g</translation>
    </message>
    <message>
        <source>250 grams|8.82 oz|0.551 lb|250 g</source>
        <translation>250 グラム|8.82 oz|0.551 lb|250 g</translation>
    </message>
    <message>
        <source>500 grams|17.64 oz|1.102 lb|500 g</source>
        <translation>500 グラム|17.64 oz|1.102 lb|500 g</translation>
    </message>
    <message>
        <source>1 kilogram|35.27 oz|2.205 lb|1000 g</source>
        <translation>1 キログラム|35.27 oz|2.205 lb|1000 g</translation>
    </message>
    <message>
        <source>⅛ stick|1 tbsp|1⁄16 cup|½ oz|14.17 g</source>
        <translation>⅛ スティック|大さじ 1|1⁄16 カップ|½ oz|14.17 g</translation>
    </message>
    <message>
        <source>¼ stick|2 tbsp|⅛ cup|1 oz|28.35 g</source>
        <translation>¼ スティック|大さじ 2|⅛ カップ|1 oz|28.35 g</translation>
    </message>
    <message>
        <source>½ stick|4 tbsp|¼ cup|2 oz|56.70 g</source>
        <translation>½ スティック|大さじ 4|¼ カップ|2 oz|56.70 g</translation>
    </message>
    <message>
        <source>1 stick|8 tbsp|½ cup|4 oz|113.40 g</source>
        <translation>1 スティック|大さじ 8|½ カップ|4 oz|113.40 g</translation>
    </message>
    <message>
        <source>2 sticks|16 tbsp|1 cup|8 oz|226.80 g</source>
        <translation>2 スティック|大さじ 16|1 カップ|8 oz|226.80 g</translation>
    </message>
    <message>
        <source>4 sticks|32 tbsp|2 cups|16 oz|453.59 g</source>
        <translation>4 スティック|大さじ 32|2 カップ|16 oz|453.59 g</translation>
    </message>
    <message>
        <source>Very cool|Gas ¼|225 °F|107 °C|110 °C</source>
        <translation>ごく低温|ガス ¼|225 °F|107 °C|110 °C</translation>
    </message>
    <message>
        <source>Very cool|Gas ½|250 °F|121 °C|120 °C</source>
        <translation>ごく低温|ガス ½|250 °F|121 °C|120 °C</translation>
    </message>
    <message>
        <source>Cool|Gas 1|275 °F|135 °C|140 °C</source>
        <translation>低温|ガス 1|275 °F|135 °C|140 °C</translation>
    </message>
    <message>
        <source>Cool|Gas 2|300 °F|149 °C|150 °C</source>
        <translation>低温|ガス 2|300 °F|149 °C|150 °C</translation>
    </message>
    <message>
        <source>Warm|Gas 3|325 °F|163 °C|160 °C</source>
        <translation>やや低温|ガス 3|325 °F|163 °C|160 °C</translation>
    </message>
    <message>
        <source>Moderate|Gas 4|350 °F|177 °C|180 °C</source>
        <translation>中温|ガス 4|350 °F|177 °C|180 °C</translation>
    </message>
    <message>
        <source>Fairly hot|Gas 5|375 °F|191 °C|190 °C</source>
        <translation>やや高温|ガス 5|375 °F|191 °C|190 °C</translation>
    </message>
    <message>
        <source>Fairly hot|Gas 6|400 °F|204 °C|200 °C</source>
        <translation>やや高温|ガス 6|400 °F|204 °C|200 °C</translation>
    </message>
    <message>
        <source>Hot|Gas 7|425 °F|218 °C|220 °C</source>
        <translation>高温|ガス 7|425 °F|218 °C|220 °C</translation>
    </message>
    <message>
        <source>Very hot|Gas 8|450 °F|232 °C|230 °C</source>
        <translation>ごく高温|ガス 8|450 °F|232 °C|230 °C</translation>
    </message>
    <message>
        <source>Very hot|Gas 9|475 °F|246 °C|250 °C</source>
        <translation>ごく高温|ガス 9|475 °F|246 °C|250 °C</translation>
    </message>
    <message>
        <source>Teaspoons to milliliters|× 4.929</source>
        <translation>小さじからミリリットル|× 4.929</translation>
    </message>
    <message>
        <source>Tablespoons to milliliters|× 14.79</source>
        <translation>大さじからミリリットル|× 14.79</translation>
    </message>
    <message>
        <source>Fluid ounces to milliliters|× 29.57</source>
        <translation>液量オンスからミリリットル|× 29.57</translation>
    </message>
    <message>
        <source>Cups to milliliters|× 236.6</source>
        <translation>カップからミリリットル|× 236.6</translation>
    </message>
    <message>
        <source>Milliliters to fluid ounces|× 0.03381</source>
        <translation>ミリリットルから液量オンス|× 0.03381</translation>
    </message>
    <message>
        <source>Quarts to liters|× 0.9464</source>
        <translation>クォートからリットル|× 0.9464</translation>
    </message>
    <message>
        <source>Liters to quarts|× 1.057</source>
        <translation>リットルからクォート|× 1.057</translation>
    </message>
    <message>
        <source>Ounces to grams|× 28.35</source>
        <translation>オンスからグラム|× 28.35</translation>
    </message>
    <message>
        <source>Grams to ounces|× 0.03527</source>
        <translation>グラムからオンス|× 0.03527</translation>
    </message>
    <message>
        <source>Pounds to kilograms|× 0.4536</source>
        <translation>ポンドからキログラム|× 0.4536</translation>
    </message>
    <message>
        <source>Kilograms to pounds|× 2.205</source>
        <translation>キログラムからポンド|× 2.205</translation>
    </message>
    <message>
        <source>Inches to centimeters|× 2.54</source>
        <translation>インチからセンチメートル|× 2.54</translation>
    </message>
    <message>
        <source>Centimeters to inches|× 0.3937</source>
        <translation>センチメートルからインチ|× 0.3937</translation>
    </message>
    <message>
        <source>Celsius to Fahrenheit|× 1.8, then + 32</source>
        <translation>摂氏から華氏|× 1.8 の後 + 32</translation>
    </message>
    <message>
        <source>Fahrenheit to Celsius|− 32, then ÷ 1.8</source>
        <translation>華氏から摂氏|− 32 の後 ÷ 1.8</translation>
    </message>
    <message>
        <source>Volume, US measures</source>
        <translation>容量 (米国の単位)</translation>
    </message>
    <message>
        <source>Measure|Teaspoons|Tablespoons|Fluid ounces|Milliliters</source>
        <translation>分量|小さじ|大さじ|液量オンス|ミリリットル</translation>
    </message>
    <message>
        <source>Volume, other measures</source>
        <translation>容量 (その他の単位)</translation>
    </message>
    <message>
        <source>Measure|US fluid ounces|Milliliters</source>
        <translation>分量|米液量オンス|ミリリットル</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>重さ</translation>
    </message>
    <message>
        <source>Weight|Ounces|Pounds|Grams</source>
        <translation>重さ|オンス|ポンド|グラム</translation>
    </message>
    <message>
        <source>Butter, US sticks</source>
        <translation>バター (米国のスティック)</translation>
    </message>
    <message>
        <source>Butter|Tablespoons|Cups|Ounces|Grams</source>
        <translation>バター|大さじ|カップ|オンス|グラム</translation>
    </message>
    <message>
        <source>Oven temperatures</source>
        <translation>オーブンの温度</translation>
    </message>
    <message>
        <source>Heat|Gas mark|Fahrenheit|Celsius|On the dial</source>
        <translation>温度の目安|ガスマーク|華氏|摂氏|目盛り</translation>
    </message>
    <message>
        <source>Common conversions</source>
        <translation>主な換算</translation>
    </message>
    <message>
        <source>Conversion|Calculation</source>
        <translation>換算|計算</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Preferences</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <extracomment>The title of a page.</extracomment>
        <translation>全般(&amp;G)</translation>
    </message>
    <message>
        <source>At &amp;launch:</source>
        <extracomment>Stands before the list of what opens when the program starts.</extracomment>
        <translation>起動時(&amp;L):</translation>
    </message>
    <message>
        <source>What opens when the program starts</source>
        <translation>プログラムの起動時に開くもの</translation>
    </message>
    <message>
        <source>At launch</source>
        <translation>起動時</translation>
    </message>
    <message>
        <source>Finished te&amp;xt:</source>
        <extracomment>Stands before the text that timers show at their end.</extracomment>
        <translation>終了時の表示(&amp;X):</translation>
    </message>
    <message>
        <source>What a timer says when its countdown has ended</source>
        <translation>カウントダウンの終了時にタイマーに表示する文字</translation>
    </message>
    <message>
        <source>Finished text</source>
        <translation>終了時の表示</translation>
    </message>
    <message>
        <source>A timer that is opened from a preset starts at once</source>
        <translation>プリセットから開いたタイマーをすぐに開始します</translation>
    </message>
    <message>
        <source>Start presets when they are &amp;opened</source>
        <translation>プリセットを開いたら開始する(&amp;O)</translation>
    </message>
    <message>
        <source>The desktop does not tell of countdowns that have ended</source>
        <translation>カウントダウンが終了してもデスクトップの通知を表示しません</translation>
    </message>
    <message>
        <source>Turn off &amp;notifications</source>
        <translation>通知をオフにする(&amp;N)</translation>
    </message>
    <message>
        <source>Running timers do not show in the panel of the desktop</source>
        <translation>実行中のタイマーをデスクトップのパネルに表示しません</translation>
    </message>
    <message>
        <source>Hide the status &amp;item</source>
        <extracomment>The item of the program in the panel of the desktop.</extracomment>
        <translation>ステータスアイコンを隠す(&amp;I)</translation>
    </message>
    <message>
        <source>Timers refresh their display less often and show no milliseconds.
Beeps and the end of a countdown come up to 0.2 seconds late.</source>
        <translation>タイマーの表示の更新を減らし、ミリ秒を表示しません。
カウントダウン音と終了が最大 0.2 秒遅れます。</translation>
    </message>
    <message>
        <source>&amp;Energy saver</source>
        <translation>省電力(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Sounds</source>
        <extracomment>The title of a page.</extracomment>
        <translation>サウンド(&amp;S)</translation>
    </message>
    <message>
        <source>No timer makes a sound</source>
        <translation>どのタイマーも音を鳴らしません</translation>
    </message>
    <message>
        <source>&amp;Mute all timers</source>
        <translation>すべてのタイマーをミュート(&amp;M)</translation>
    </message>
    <message>
        <source>The last seconds of a countdown pass in silence</source>
        <translation>カウントダウンの最後の数秒に音を鳴らしません</translation>
    </message>
    <message>
        <source>Turn off countdown &amp;beeps</source>
        <translation>カウントダウン音をオフにする(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Alarm:</source>
        <translation>アラーム(&amp;A):</translation>
    </message>
    <message>
        <source>Alarm sound of new timers</source>
        <translation>新しいタイマーのアラーム音</translation>
    </message>
    <message>
        <source>Play the alarm sound</source>
        <translation>アラーム音を再生</translation>
    </message>
    <message>
        <source>Stop the alarm sound</source>
        <translation>アラーム音を停止</translation>
    </message>
    <message>
        <source>In use:</source>
        <extracomment>Stands before the name of a sound.</extracomment>
        <translation>使用中:</translation>
    </message>
    <message>
        <source>Alarm sound in use</source>
        <translation>使用中のアラーム音</translation>
    </message>
    <message>
        <source>Alarm sound that cannot be played</source>
        <translation>再生できないアラーム音</translation>
    </message>
    <message>
        <source>&amp;Countdown:</source>
        <translation>カウントダウン(&amp;C):</translation>
    </message>
    <message>
        <source>Countdown sound of new timers</source>
        <translation>新しいタイマーのカウントダウン音</translation>
    </message>
    <message>
        <source>Play the countdown sound</source>
        <translation>カウントダウン音を再生</translation>
    </message>
    <message>
        <source>Stop the countdown sound</source>
        <translation>カウントダウン音を停止</translation>
    </message>
    <message>
        <source>Countdown sound in use</source>
        <translation>使用中のカウントダウン音</translation>
    </message>
    <message>
        <source>Countdown sound that cannot be played</source>
        <translation>再生できないカウントダウン音</translation>
    </message>
    <message>
        <source>Timers opened from now on begin with these sounds. Each timer offers a choice of its own under More Options.</source>
        <translation>これから開くタイマーはこのサウンドを使います。タイマーごとのサウンドは、それぞれの「詳細オプション」で選べます。</translation>
    </message>
    <message>
        <source>Mute All</source>
        <translation>すべてミュート</translation>
    </message>
    <message>
        <source>Unmute All</source>
        <translation>すべてミュート解除</translation>
    </message>
    <message>
        <source>Select a sound file</source>
        <translation>サウンドファイルを選択</translation>
    </message>
    <message>
        <source>Unplayable:</source>
        <extracomment>Stands before the name of the file of a sound.</extracomment>
        <translation>再生不可:</translation>
    </message>
    <message>
        <source>Missing:</source>
        <translation>見つかりません:</translation>
    </message>
    <message>
        <source>Running timers do not show in the panel</source>
        <extracomment>A line below “Hide the status item”; as short as possible.</extracomment>
        <translation>実行中のタイマーをパネルに表示しません</translation>
    </message>
    <message>
        <source>No milliseconds; beeps and alarms up to 0.2 s late</source>
        <extracomment>A line below “Energy saver”; as short as possible.</extracomment>
        <translation>ミリ秒を表示せず、カウントダウン音とアラームが最大 0.2 秒遅れます</translation>
    </message>
</context>
<context>
    <name>Preset</name>
    <message>
        <source>Preset %1</source>
        <extracomment>In the display of a timer opened from a preset; %1 is its number.</extracomment>
        <translation>プリセット %1</translation>
    </message>
    <message>
        <source>Saved to Preset %1</source>
        <extracomment>In the display of a timer saved into a preset; %1 is its number.</extracomment>
        <translation>プリセット %1 に保存しました</translation>
    </message>
</context>
<context>
    <name>PresetsMenu</name>
    <message>
        <source>&amp;Presets</source>
        <translation>プリセット(&amp;P)</translation>
    </message>
    <message>
        <source>Save Wuffer to Preset</source>
        <translation>タイマーをプリセットに保存</translation>
    </message>
    <message>
        <source>Shortcut: Hold Control and press a number key</source>
        <translation>ショートカット: Ctrl を押しながら数字キー</translation>
    </message>
    <message>
        <source>⌘%1 (Overwrite %2)</source>
        <extracomment>The number of a preset, and the name and time in it, which saving replaces.</extracomment>
        <translation>⌘%1 (%2 を上書き)</translation>
    </message>
</context>
<context>
    <name>SoundEntries</name>
    <message>
        <source>Wuff (Default)</source>
        <extracomment>A sound of the program: the bark of a dog.</extracomment>
        <translation>ワン (標準)</translation>
    </message>
    <message>
        <source>Crow (Default)</source>
        <extracomment>A sound of the program: the caw of a crow.</extracomment>
        <translation>カラス (標準)</translation>
    </message>
    <message>
        <source>Select another sound...</source>
        <translation>別のサウンドを選択...</translation>
    </message>
    <message>
        <source>Clear custom sounds</source>
        <translation>追加したサウンドを消去</translation>
    </message>
    <message>
        <source>Manage Sounds...</source>
        <translation>サウンドを管理...</translation>
    </message>
</context>
<context>
    <name>StatusItem</name>
    <message>
        <source>%1: %2</source>
        <extracomment>The name of the program and the time of a timer.</extracomment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>TargetTime</name>
    <message>
        <source>Target Date</source>
        <extracomment>The title of the sheet in which the user picks the date at which a timer rings.</extracomment>
        <translation>目標日時</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>カレンダー</translation>
    </message>
    <message>
        <source>Ring &amp;at:</source>
        <extracomment>Stands before the date and time at which a timer rings.</extracomment>
        <translation>鳴らす日時(&amp;A):</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>日付と時刻</translation>
    </message>
    <message>
        <source>How long that is from now</source>
        <translation>今からの残り時間</translation>
    </message>
</context>
<context>
    <name>TargetTimeSheet</name>
    <message>
        <source>Previous month</source>
        <extracomment>Accessible name: the arrow of the calendar that turns one month back.</extracomment>
        <translation>前の月</translation>
    </message>
    <message>
        <source>Next month</source>
        <extracomment>Accessible name: the arrow of the calendar that turns one month on.</extracomment>
        <translation>次の月</translation>
    </message>
</context>
<context>
    <name>TimeDistance</name>
    <message>
        <source>%1 d</source>
        <extracomment>Days, hours, minutes and seconds, abbreviated, as in “in 4 h 12 min”.</extracomment>
        <translation>%1 日</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 時間</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 分</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>now</source>
        <extracomment>The time that is left until a date: none.</extracomment>
        <translation>今</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>Two units of a time, the larger first: “4 h 12 min”.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>in %1</source>
        <extracomment>The time that is left until a date: “in 4 h 12 min”.</extracomment>
        <translation>%1後</translation>
    </message>
</context>
<context>
    <name>TimeFormat</name>
    <message>
        <source>%1d </source>
        <extracomment>The parts of a running time, such as “1h 5m 3s”: days, hours, minutes and seconds. They stand side by side, so all but the seconds end with a blank. The display has room for ten characters at its largest size.</extracomment>
        <translation>%1d </translation>
    </message>
    <message>
        <source>%1h </source>
        <translation>%1h </translation>
    </message>
    <message>
        <source>%1m </source>
        <translation>%1m </translation>
    </message>
    <message>
        <source>%1s</source>
        <extracomment>The last part of a running time, such as “1h 5m 3s”.</extracomment>
        <translation>%1s</translation>
    </message>
    <message>
        <source>%1h %2m %3s</source>
        <extracomment>The time set in a timer: hours, minutes and seconds.</extracomment>
        <translation>%1h %2m %3s</translation>
    </message>
</context>
<context>
    <name>TimeText</name>
    <message>
        <source>d day days</source>
        <extracomment>Words and letters for days that users type after a number, separated by blanks. The English ones are always understood; give those of your language. One word must not stand for two units.</extracomment>
        <translation>d ｄ 日 日間 日と にち にちかん</translation>
    </message>
    <message>
        <source>h hr hrs hour hours</source>
        <extracomment>The same for hours.</extracomment>
        <translation>h ｈ 時間 時 時間と じかん じ</translation>
    </message>
    <message>
        <source>m min mins minute minutes</source>
        <extracomment>The same for minutes.</extracomment>
        <translation>m ｍ 分 分間 分と ふん ふんかん ぷん ぷんかん</translation>
    </message>
    <message>
        <source>s sec secs second seconds</source>
        <extracomment>The same for seconds.</extracomment>
        <translation>s ｓ 秒 秒間 びょう びょうかん</translation>
    </message>
    <message>
        <source>and</source>
        <extracomment>The word between two units: “1 hour and 5 minutes”.</extracomment>
        <translation>と</translation>
    </message>
</context>
<context>
    <name>TimerRun</name>
    <message>
        <source>%1 (x%2)</source>
        <extracomment>A time, and the number of the pass of a timer that loops.</extracomment>
        <translation>%1 (%2 回目)</translation>
    </message>
</context>
<context>
    <name>TimerTexts</name>
    <message>
        <source>Start</source>
        <extracomment>On the button and in the menu: runs the timer.</extracomment>
        <translation>開始</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>On the button and in the menu: stops the running timer.</extracomment>
        <translation>停止</translation>
    </message>
    <message>
        <source>Reset</source>
        <extracomment>On the button and in the menu, during an alarm: ends the alarm.</extracomment>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Start Chain</source>
        <extracomment>On the button and in the menu, at the first timer of a chain: runs the chain.</extracomment>
        <translation>チェーンを開始</translation>
    </message>
    <message>
        <source>Chained</source>
        <extracomment>On the disabled button and in the menu: another timer starts this one.</extracomment>
        <translation>チェーン中</translation>
    </message>
    <message>
        <source>Stopwatch</source>
        <extracomment>A timer that counts up, and the menu item that makes a timer one.</extracomment>
        <translation>ストップウォッチ</translation>
    </message>
    <message>
        <source>Timer</source>
        <extracomment>The menu item that makes a stopwatch a timer that counts down.</extracomment>
        <translation>タイマー</translation>
    </message>
    <message>
        <source>More Options</source>
        <extracomment>Opens the drawer with more options of a timer.</extracomment>
        <translation>詳細オプション</translation>
    </message>
    <message>
        <source>Hide Options</source>
        <extracomment>Closes the drawer with more options of a timer.</extracomment>
        <translation>オプションを隠す</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <extracomment>A line of a list: the name of a timer and a time, such as “Tea - 0h 5m 0s”.</extracomment>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>The name of a timer and what its display shows, such as “Tea: 5m 3s”.</extracomment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>Wuffer</name>
    <message>
        <source>Display</source>
        <extracomment>Accessible name: the part of the window that shows the time.</extracomment>
        <translation>表示部</translation>
    </message>
    <message>
        <source>The name of this timer</source>
        <translation>このタイマーの名前</translation>
    </message>
    <message>
        <source>Name</source>
        <extracomment>Accessible name: the name of the timer.</extracomment>
        <translation>名前</translation>
    </message>
    <message>
        <source>Name on the full screen</source>
        <extracomment>Accessible name: the name of the timer.</extracomment>
        <translation>全画面表示でのタイマー名</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>Accessible name: the time that the timer shows.</extracomment>
        <translation>タイマーの時間</translation>
    </message>
    <message>
        <source>Elapsed time</source>
        <translation>経過時間</translation>
    </message>
    <message>
        <source>Milliseconds</source>
        <translation>ミリ秒</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>h&amp;ours</source>
        <extracomment>Stands after a number field, with those for minutes and seconds in one line.</extracomment>
        <translation>時間(&amp;O)</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>分</translation>
    </message>
    <message>
        <source>&amp;minutes</source>
        <translation>分(&amp;M)</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>&amp;seconds</source>
        <translation>秒(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Keep wuffing</source>
        <extracomment>A check box: the alarm goes on until the user stops it. The program&apos;s alarm is the bark of a dog, “wuff”.</extracomment>
        <translation>鳴き続ける(&amp;K)</translation>
    </message>
    <message>
        <source>Fill the screen when the countdown starts; any key or click ends it</source>
        <translation>カウントダウンの開始時に全画面で表示します。キーを押すかクリックすると元に戻ります</translation>
    </message>
    <message>
        <source>Fu&amp;ll screen</source>
        <extracomment>A check box.</extracomment>
        <translation>全画面表示(&amp;L)</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>Accessible name: the drawer with more options of a timer.</extracomment>
        <translation>オプション</translation>
    </message>
    <message>
        <source>When fi&amp;nished:</source>
        <extracomment>Stands before the list of finish actions.</extracomment>
        <translation>終了時(&amp;N):</translation>
    </message>
    <message>
        <source>What happens when the countdown has ended and its alarm is over</source>
        <translation>カウントダウンが終了し、アラームが止まった後の動作</translation>
    </message>
    <message>
        <source>When finished</source>
        <translation>終了時</translation>
    </message>
    <message>
        <source>What can happen when the countdown ends</source>
        <translation>カウントダウンの終了時に選べる動作</translation>
    </message>
    <message>
        <source>Help on finish actions</source>
        <translation>終了時の動作のヘルプ</translation>
    </message>
    <message>
        <source>What the finish action starts</source>
        <extracomment>Accessible name of the list of presets, or of the linked timer.</extracomment>
        <translation>終了時に開始するもの</translation>
    </message>
    <message>
        <source>Choose from the open timers</source>
        <translation>開いているタイマーから選択</translation>
    </message>
    <message>
        <source>Choose the timer to start</source>
        <translation>開始するタイマーを選択</translation>
    </message>
    <message>
        <source>&amp;Alarm:</source>
        <extracomment>Stands before the list of sounds.</extracomment>
        <translation>アラーム(&amp;A):</translation>
    </message>
    <message>
        <source>Alarm sound</source>
        <translation>アラーム音</translation>
    </message>
    <message>
        <source>Play the alarm sound</source>
        <translation>アラーム音を再生</translation>
    </message>
    <message>
        <source>Stop the alarm sound</source>
        <translation>アラーム音を停止</translation>
    </message>
    <message>
        <source>&amp;Countdown:</source>
        <extracomment>Stands before the list of sounds for the last seconds of a countdown.</extracomment>
        <translation>カウントダウン(&amp;C):</translation>
    </message>
    <message>
        <source>Countdown sound</source>
        <translation>カウントダウン音</translation>
    </message>
    <message>
        <source>Play the countdown sound</source>
        <translation>カウントダウン音を再生</translation>
    </message>
    <message>
        <source>Stop the countdown sound</source>
        <translation>カウントダウン音を停止</translation>
    </message>
    <message>
        <source>Elapsed: %1</source>
        <extracomment>The time since the start of a timer.</extracomment>
        <translation>経過: %1</translation>
    </message>
    <message>
        <source>Ready when you are</source>
        <translation>いつでも開始できます</translation>
    </message>
    <message>
        <source>The preset that this timer turns into and runs when it has finished</source>
        <translation>終了後、このタイマーに読み込んで実行するプリセット</translation>
    </message>
    <message>
        <source>Control-Drag a Wuffer</source>
        <extracomment>In place of the name of the timer to start: how to choose one.</extracomment>
        <translation>タイマーを Ctrl+ドラッグ</translation>
    </message>
    <message>
        <source>When finished, this timer starts “%1”</source>
        <translation>終了時に「%1」を開始します</translation>
    </message>
    <message>
        <source>Hold Control and drag the window of another timer onto this one: it starts when this one has finished</source>
        <translation>Ctrl を押しながら別のタイマーのウィンドウをこのウィンドウにドラッグすると、このタイマーの終了時にそのタイマーが開始します</translation>
    </message>
    <message>
        <source>Sound is off</source>
        <translation>サウンドはオフです</translation>
    </message>
    <message>
        <source>Sound is on</source>
        <translation>サウンドはオンです</translation>
    </message>
    <message>
        <source>Let all timers be heard again</source>
        <translation>すべてのタイマーのミュートを解除</translation>
    </message>
    <message>
        <source>Mute all timers</source>
        <translation>すべてのタイマーをミュート</translation>
    </message>
    <message>
        <source>A timer fills the screen</source>
        <translation>タイマーを全画面表示中</translation>
    </message>
</context>
<context>
    <name>WufferController</name>
    <message>
        <source>Preferences</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Converter</source>
        <translation>単位換算</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>計量表</translation>
    </message>
    <message>
        <source>Wuffer Help</source>
        <translation>Wuffer ヘルプ</translation>
    </message>
</context>
</TS>

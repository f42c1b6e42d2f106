<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>About Wuffer</source>
        <translation>Über Wuffer</translation>
    </message>
    <message>
        <source>Countdown timers for the desktop</source>
        <translation>Countdown-Timer für den Desktop</translation>
    </message>
    <message>
        <source>Copyright © 2026 The Wuffer developers
Free software under the MIT License: use it, change it
and pass it on. It comes without any warranty.</source>
        <translation>Copyright © 2026 The Wuffer developers
Freie Software unter der MIT-Lizenz: Sie dürfen sie verwenden,
ändern und weitergeben. Sie kommt ohne jede Gewährleistung.</translation>
    </message>
    <message>
        <source>Libraries and their licenses</source>
        <translation>Bibliotheken und ihre Lizenzen</translation>
    </message>
</context>
<context>
    <name>AboutDialog</name>
    <message>
        <source>sound output</source>
        <extracomment>What a library is used for.</extracomment>
        <translation>Tonausgabe</translation>
    </message>
    <message>
        <source>sound files</source>
        <translation>Audiodateien</translation>
    </message>
    <message>
        <source>MP3 files</source>
        <translation>MP3-Dateien</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>windows</source>
        <extracomment>What a library is used for.</extracomment>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>X Window System</source>
        <translation>X Window System</translation>
    </message>
    <message>
        <source>windows, session bus</source>
        <extracomment>What a library is used for.</extracomment>
        <translation>Fenster, Sitzungsbus</translation>
    </message>
</context>
<context>
    <name>AlarmAnnouncement</name>
    <message>
        <source>Alarm ended</source>
        <extracomment>Screen readers say it after the name of a timer.</extracomment>
        <translation>Alarm beendet</translation>
    </message>
</context>
<context>
    <name>Chain</name>
    <message>
        <source>Wuffer Chain - %1 of %2</source>
        <extracomment>The place of a timer in a chain: position and number of timers.</extracomment>
        <translation>Timer-Kette – %1 von %2</translation>
    </message>
    <message>
        <source>Started by “%1”</source>
        <extracomment>Names of timers.</extracomment>
        <translation>Gestartet von „%1“</translation>
    </message>
    <message>
        <source>Starts “%1”</source>
        <translation>Startet „%1“</translation>
    </message>
    <message>
        <source>Started by “%1”; starts “%2”</source>
        <translation>Gestartet von „%1“; startet „%2“</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Countdown timers for the desktop. If the program is already running, it carries out what is asked for here.</source>
        <translation>Countdown-Timer für den Desktop. Läuft das Programm bereits, führt es aus, was hier angegeben ist.</translation>
    </message>
    <message>
        <source>Wait for the session bus to say what to open.</source>
        <translation>Warten, bis der Sitzungsbus sagt, was zu öffnen ist.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Diese Hilfe anzeigen.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Die Version anzeigen.</translation>
    </message>
    <message>
        <source>Unexpected argument “%1”.</source>
        <translation>Unerwartetes Argument: „%1“.</translation>
    </message>
    <message>
        <source>Open a new timer.</source>
        <translation>Einen neuen Timer öffnen.</translation>
    </message>
    <message>
        <source>Start every timer.</source>
        <translation>Alle Timer starten.</translation>
    </message>
    <message>
        <source>Show the preferences.</source>
        <translation>Die Einstellungen anzeigen.</translation>
    </message>
    <message>
        <source>Show the unit converter.</source>
        <translation>Den Umrechner für Einheiten anzeigen.</translation>
    </message>
</context>
<context>
    <name>Converter</name>
    <message>
        <source>Volume (US measures)</source>
        <translation>Volumen (US-Maße)</translation>
    </message>
    <message>
        <source>&amp;Milliliters:</source>
        <translation>&amp;Milliliter:</translation>
    </message>
    <message>
        <source>Milliliters</source>
        <translation>Milliliter</translation>
    </message>
    <message>
        <source>F&amp;luid ounces:</source>
        <translation>F&amp;lüssigunzen:</translation>
    </message>
    <message>
        <source>Fluid ounces</source>
        <translation>Flüssigunzen</translation>
    </message>
    <message>
        <source>&amp;Cups:</source>
        <translation>&amp;Cups:</translation>
    </message>
    <message>
        <source>Cups</source>
        <translation>Cups</translation>
    </message>
    <message>
        <source>Ta&amp;blespoons:</source>
        <translation>E&amp;sslöffel:</translation>
    </message>
    <message>
        <source>Tablespoons</source>
        <translation>Esslöffel</translation>
    </message>
    <message>
        <source>T&amp;easpoons:</source>
        <translation>T&amp;eelöffel:</translation>
    </message>
    <message>
        <source>Teaspoons</source>
        <translation>Teelöffel</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>&amp;Grams:</source>
        <translation>&amp;Gramm:</translation>
    </message>
    <message>
        <source>Grams</source>
        <translation>Gramm</translation>
    </message>
    <message>
        <source>&amp;Ounces:</source>
        <translation>&amp;Unzen:</translation>
    </message>
    <message>
        <source>Ounces</source>
        <translation>Unzen</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Cel&amp;sius:</source>
        <translation>Cels&amp;ius:</translation>
    </message>
    <message>
        <source>Celsius</source>
        <translation>Celsius</translation>
    </message>
    <message>
        <source>Fah&amp;renheit:</source>
        <translation>Fah&amp;renheit:</translation>
    </message>
    <message>
        <source>Fahrenheit</source>
        <translation>Fahrenheit</translation>
    </message>
</context>
<context>
    <name>FinishActions</name>
    <message>
        <source>Do Nothing</source>
        <translation>Nichts tun</translation>
    </message>
    <message>
        <source>Loop this Wuffer</source>
        <translation>Timer wiederholen</translation>
    </message>
    <message>
        <source>Start a Preset</source>
        <translation>Vorlage starten</translation>
    </message>
    <message>
        <source>Start other open Wuffer</source>
        <translation>Anderen Timer starten</translation>
    </message>
</context>
<context>
    <name>FreedesktopNotifications</name>
    <message>
        <source>Show</source>
        <extracomment>A button of a notification: brings the timer to the front.</extracomment>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>A button of a notification: ends the alarm.</extracomment>
        <translation>Stoppen</translation>
    </message>
</context>
<context>
    <name>GatheredNotifications</name>
    <message numerus="yes">
        <source>%n timers have ended</source>
        <translation>
            <numerusform>%n Timer ist abgelaufen</numerusform>
            <numerusform>%n Timer sind abgelaufen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weiterer</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Back</source>
        <extracomment>Goes to the page of the help that was shown before.</extracomment>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <extracomment>Goes to the page of the help that was shown after this one.</extracomment>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Search the help</source>
        <translation>Hilfe durchsuchen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Pages</source>
        <extracomment>Accessible name of the list of pages.</extracomment>
        <translation>Seiten</translation>
    </message>
</context>
<context>
    <name>HelpPages</name>
    <message>
        <source>en</source>
        <extracomment>The folder with the help pages in your language, such as &quot;de&quot;. Leave &quot;en&quot; if there is none.</extracomment>
        <translation>de</translation>
    </message>
    <message>
        <source>%1 menu</source>
        <extracomment>The title of a table of keys; %1 is the name of a menu.</extracomment>
        <translation>Menü %1</translation>
    </message>
    <message>
        <source>This help is available in English only.</source>
        <extracomment>Stands above the pages of the help in languages that the help is not translated to.</extracomment>
        <translation>Diese Hilfe gibt es nur auf Englisch.</translation>
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
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Found: %1</source>
        <translation>Gefunden: %1</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
</context>
<context>
    <name>Home</name>
    <message>
        <source>New Timer</source>
        <translation>Neuer Timer</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Vorlagen</translation>
    </message>
</context>
<context>
    <name>KeepOnTopItem</name>
    <message>
        <source>Keep on &amp;Top</source>
        <translation>Im &amp;Vordergrund halten</translation>
    </message>
</context>
<context>
    <name>KeepWuffing</name>
    <message>
        <source>A stopwatch has no alarm that could go on</source>
        <translation>Eine Stoppuhr hat keinen Alarm, der weitergehen könnte</translation>
    </message>
    <message>
        <source>Only a timer that is to “%1” when finished can go on wuffing</source>
        <extracomment>%1 is the finish action “Do Nothing”.</extracomment>
        <translation>Weiterwuffen kann nur ein Timer mit „Nach Ablauf: %1“</translation>
    </message>
    <message>
        <source>The sound of all timers is off</source>
        <translation>Der Ton aller Timer ist aus</translation>
    </message>
    <message>
        <source>Repeat the alarm sound until you press %1</source>
        <extracomment>%1 is the title of the button “Reset”.</extracomment>
        <translation>Den Alarmton wiederholen, bis „%1“ gedrückt wird</translation>
    </message>
</context>
<context>
    <name>LaunchChoices</name>
    <message>
        <source>Open a Wuffer</source>
        <translation>Timer öffnen</translation>
    </message>
    <message>
        <source>Do Nothing</source>
        <translation>Nichts tun</translation>
    </message>
    <message>
        <source>Open Preset ⌘1</source>
        <translation>Vorlage ⌘1 öffnen</translation>
    </message>
    <message>
        <source>Open and Start Preset ⌘1</source>
        <translation>Vorlage ⌘1 öffnen und starten</translation>
    </message>
</context>
<context>
    <name>LinkMenu</name>
    <message>
        <source>When F&amp;inished, Start</source>
        <translation>&amp;Nach Ablauf starten</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Keinen</translation>
    </message>
    <message>
        <source>No &amp;Other Timer Is Open</source>
        <translation>Kein &amp;anderer Timer ist geöffnet</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New Timer</source>
        <translation>&amp;Neuer Timer</translation>
    </message>
    <message>
        <source>Start &amp;All</source>
        <translation>&amp;Alle starten</translation>
    </message>
    <message>
        <source>Mute All</source>
        <translation>Alle stummschalten</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Einstellungen…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Timer</source>
        <translation>&amp;Timer</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>Stopwatch</source>
        <translation>Stoppuhr</translation>
    </message>
    <message>
        <source>Count Down to a &amp;Date…</source>
        <translation>Countdown bis zu einem &amp;Datum…</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Keep Wuffing</source>
        <translation>&amp;Weiterwuffen</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>&amp;Vollbild</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Mehr Optionen</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <source>&amp;Minimize</source>
        <translation>&amp;Minimieren</translation>
    </message>
    <message>
        <source>&amp;Converter</source>
        <translation>&amp;Umrechner</translation>
    </message>
    <message>
        <source>M&amp;easurements</source>
        <translation>&amp;Küchenmaße</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Wuffer &amp;Help</source>
        <translation>Wuffer-&amp;Hilfe</translation>
    </message>
    <message>
        <source>Wuffer on the &amp;Web</source>
        <translation>Wuffer im &amp;Web</translation>
    </message>
    <message>
        <source>&amp;About Wuffer</source>
        <translation>Ü&amp;ber Wuffer</translation>
    </message>
</context>
<context>
    <name>MeasurementsPanel</name>
    <message>
        <source>Kitchen measurements</source>
        <translation>Küchenmaße</translation>
    </message>
    <message>
        <source>1 teaspoon|1 tsp|⅓ tbsp|⅙ fl oz|4.93 mL</source>
        <translation>1 Teelöffel|1 TL|⅓ EL|⅙ fl oz|4.93 ml</translation>
    </message>
    <message>
        <source>1 tablespoon|3 tsp|1 tbsp|½ fl oz|14.79 mL</source>
        <translation>1 Esslöffel|3 TL|1 EL|½ fl oz|14.79 ml</translation>
    </message>
    <message>
        <source>1 fluid ounce|6 tsp|2 tbsp|1 fl oz|29.57 mL</source>
        <translation>1 Flüssigunze|6 TL|2 EL|1 fl oz|29.57 ml</translation>
    </message>
    <message>
        <source>¼ cup|12 tsp|4 tbsp|2 fl oz|59.15 mL</source>
        <translation>¼ Cup|12 TL|4 EL|2 fl oz|59.15 ml</translation>
    </message>
    <message>
        <source>⅓ cup|16 tsp|5⅓ tbsp|2⅔ fl oz|78.86 mL</source>
        <translation>⅓ Cup|16 TL|5⅓ EL|2⅔ fl oz|78.86 ml</translation>
    </message>
    <message>
        <source>½ cup|24 tsp|8 tbsp|4 fl oz|118.29 mL</source>
        <translation>½ Cup|24 TL|8 EL|4 fl oz|118.29 ml</translation>
    </message>
    <message>
        <source>⅔ cup|32 tsp|10⅔ tbsp|5⅓ fl oz|157.73 mL</source>
        <translation>⅔ Cup|32 TL|10⅔ EL|5⅓ fl oz|157.73 ml</translation>
    </message>
    <message>
        <source>¾ cup|36 tsp|12 tbsp|6 fl oz|177.44 mL</source>
        <translation>¾ Cup|36 TL|12 EL|6 fl oz|177.44 ml</translation>
    </message>
    <message>
        <source>1 cup|48 tsp|16 tbsp|8 fl oz|236.59 mL</source>
        <translation>1 Cup|48 TL|16 EL|8 fl oz|236.59 ml</translation>
    </message>
    <message>
        <source>1 pint|96 tsp|32 tbsp|16 fl oz|473.18 mL</source>
        <translation>1 Pint|96 TL|32 EL|16 fl oz|473.18 ml</translation>
    </message>
    <message>
        <source>1 quart|192 tsp|64 tbsp|32 fl oz|946.35 mL</source>
        <translation>1 Quart|192 TL|64 EL|32 fl oz|946.35 ml</translation>
    </message>
    <message>
        <source>1 gallon|768 tsp|256 tbsp|128 fl oz|3785.41 mL</source>
        <translation>1 Gallone|768 TL|256 EL|128 fl oz|3785.41 ml</translation>
    </message>
    <message>
        <source>1 metric teaspoon|0.17 fl oz|5 mL</source>
        <translation>1 metrischer Teelöffel|0.17 fl oz|5 ml</translation>
    </message>
    <message>
        <source>1 metric tablespoon|0.51 fl oz|15 mL</source>
        <translation>1 metrischer Esslöffel|0.51 fl oz|15 ml</translation>
    </message>
    <message>
        <source>1 Australian tablespoon|0.68 fl oz|20 mL</source>
        <translation>1 australischer Esslöffel|0.68 fl oz|20 ml</translation>
    </message>
    <message>
        <source>1 Japanese cup|6.76 fl oz|200 mL</source>
        <translation>1 japanischer Cup|6.76 fl oz|200 ml</translation>
    </message>
    <message>
        <source>1 metric cup|8.45 fl oz|250 mL</source>
        <translation>1 metrischer Cup|8.45 fl oz|250 ml</translation>
    </message>
    <message>
        <source>1 liter|33.81 fl oz|1000 mL</source>
        <translation>1 Liter|33.81 fl oz|1000 ml</translation>
    </message>
    <message>
        <source>1 UK fluid ounce|0.96 fl oz|28.41 mL</source>
        <translation>1 britische Flüssigunze|0.96 fl oz|28.41 ml</translation>
    </message>
    <message>
        <source>1 UK pint|19.22 fl oz|568.26 mL</source>
        <translation>1 britisches Pint|19.22 fl oz|568.26 ml</translation>
    </message>
    <message>
        <source>1 UK quart|38.43 fl oz|1136.52 mL</source>
        <translation>1 britisches Quart|38.43 fl oz|1136.52 ml</translation>
    </message>
    <message>
        <source>1 UK gallon|153.72 fl oz|4546.09 mL</source>
        <translation>1 britische Gallone|153.72 fl oz|4546.09 ml</translation>
    </message>
    <message>
        <source>1 ounce|1 oz|0.0625 lb|28.35 g</source>
        <translation>1 Unze|1 oz|0.0625 lb|28.35 g</translation>
    </message>
    <message>
        <source>2 ounces|2 oz|0.125 lb|56.70 g</source>
        <translation>2 Unzen|2 oz|0.125 lb|56.70 g</translation>
    </message>
    <message>
        <source>¼ pound|4 oz|0.25 lb|113.40 g</source>
        <translation>¼ US-Pfund|4 oz|0.25 lb|113.40 g</translation>
    </message>
    <message>
        <source>½ pound|8 oz|0.5 lb|226.80 g</source>
        <translation>½ US-Pfund|8 oz|0.5 lb|226.80 g</translation>
    </message>
    <message>
        <source>¾ pound|12 oz|0.75 lb|340.19 g</source>
        <translation>¾ US-Pfund|12 oz|0.75 lb|340.19 g</translation>
    </message>
    <message>
        <source>1 pound|16 oz|1 lb|453.59 g</source>
        <translation>1 US-Pfund|16 oz|1 lb|453.59 g</translation>
    </message>
    <message>
        <source>2 pounds|32 oz|2 lb|907.18 g</source>
        <translation>2 US-Pfund|32 oz|2 lb|907.18 g</translation>
    </message>
    <message>
        <source>50 grams|1.76 oz|0.110 lb|50 g</source>
        <translation>50 Gramm|1.76 oz|0.110 lb|50 g</translation>
    </message>
    <message>
        <source>100 grams|3.53 oz|0.220 lb|100 g</source>
        <translation>100 Gramm|3.53 oz|0.220 lb|100 g</translation>
    </message>
    <message>
        <source>250 grams|8.82 oz|0.551 lb|250 g</source>
        <translation>250 Gramm|8.82 oz|0.551 lb|250 g</translation>
    </message>
    <message>
        <source>500 grams|17.64 oz|1.102 lb|500 g</source>
        <translation>500 Gramm|17.64 oz|1.102 lb|500 g</translation>
    </message>
    <message>
        <source>1 kilogram|35.27 oz|2.205 lb|1000 g</source>
        <translation>1 Kilogramm|35.27 oz|2.205 lb|1000 g</translation>
    </message>
    <message>
        <source>⅛ stick|1 tbsp|1⁄16 cup|½ oz|14.17 g</source>
        <translation>⅛ Stick|1 EL|1⁄16 Cup|½ oz|14.17 g</translation>
    </message>
    <message>
        <source>¼ stick|2 tbsp|⅛ cup|1 oz|28.35 g</source>
        <translation>¼ Stick|2 EL|⅛ Cup|1 oz|28.35 g</translation>
    </message>
    <message>
        <source>½ stick|4 tbsp|¼ cup|2 oz|56.70 g</source>
        <translation>½ Stick|4 EL|¼ Cup|2 oz|56.70 g</translation>
    </message>
    <message>
        <source>1 stick|8 tbsp|½ cup|4 oz|113.40 g</source>
        <translation>1 Stick|8 EL|½ Cup|4 oz|113.40 g</translation>
    </message>
    <message>
        <source>2 sticks|16 tbsp|1 cup|8 oz|226.80 g</source>
        <translation>2 Sticks|16 EL|1 Cup|8 oz|226.80 g</translation>
    </message>
    <message>
        <source>4 sticks|32 tbsp|2 cups|16 oz|453.59 g</source>
        <translation>4 Sticks|32 EL|2 Cups|16 oz|453.59 g</translation>
    </message>
    <message>
        <source>Very cool|Gas ¼|225 °F|107 °C|110 °C</source>
        <translation>Sehr schwach|Gas ¼|225 °F|107 °C|110 °C</translation>
    </message>
    <message>
        <source>Very cool|Gas ½|250 °F|121 °C|120 °C</source>
        <translation>Sehr schwach|Gas ½|250 °F|121 °C|120 °C</translation>
    </message>
    <message>
        <source>Cool|Gas 1|275 °F|135 °C|140 °C</source>
        <translation>Schwach|Gas 1|275 °F|135 °C|140 °C</translation>
    </message>
    <message>
        <source>Cool|Gas 2|300 °F|149 °C|150 °C</source>
        <translation>Schwach|Gas 2|300 °F|149 °C|150 °C</translation>
    </message>
    <message>
        <source>Warm|Gas 3|325 °F|163 °C|160 °C</source>
        <translation>Mäßig|Gas 3|325 °F|163 °C|160 °C</translation>
    </message>
    <message>
        <source>Moderate|Gas 4|350 °F|177 °C|180 °C</source>
        <translation>Mittel|Gas 4|350 °F|177 °C|180 °C</translation>
    </message>
    <message>
        <source>Fairly hot|Gas 5|375 °F|191 °C|190 °C</source>
        <translation>Mittelstark|Gas 5|375 °F|191 °C|190 °C</translation>
    </message>
    <message>
        <source>Fairly hot|Gas 6|400 °F|204 °C|200 °C</source>
        <translation>Mittelstark|Gas 6|400 °F|204 °C|200 °C</translation>
    </message>
    <message>
        <source>Hot|Gas 7|425 °F|218 °C|220 °C</source>
        <translation>Stark|Gas 7|425 °F|218 °C|220 °C</translation>
    </message>
    <message>
        <source>Very hot|Gas 8|450 °F|232 °C|230 °C</source>
        <translation>Sehr stark|Gas 8|450 °F|232 °C|230 °C</translation>
    </message>
    <message>
        <source>Very hot|Gas 9|475 °F|246 °C|250 °C</source>
        <translation>Sehr stark|Gas 9|475 °F|246 °C|250 °C</translation>
    </message>
    <message>
        <source>Teaspoons to milliliters|× 4.929</source>
        <translation>Teelöffel in Milliliter|× 4.929</translation>
    </message>
    <message>
        <source>Tablespoons to milliliters|× 14.79</source>
        <translation>Esslöffel in Milliliter|× 14.79</translation>
    </message>
    <message>
        <source>Fluid ounces to milliliters|× 29.57</source>
        <translation>Flüssigunzen in Milliliter|× 29.57</translation>
    </message>
    <message>
        <source>Cups to milliliters|× 236.6</source>
        <translation>Cups in Milliliter|× 236.6</translation>
    </message>
    <message>
        <source>Milliliters to fluid ounces|× 0.03381</source>
        <translation>Milliliter in Flüssigunzen|× 0.03381</translation>
    </message>
    <message>
        <source>Quarts to liters|× 0.9464</source>
        <translation>Quarts in Liter|× 0.9464</translation>
    </message>
    <message>
        <source>Liters to quarts|× 1.057</source>
        <translation>Liter in Quarts|× 1.057</translation>
    </message>
    <message>
        <source>Ounces to grams|× 28.35</source>
        <translation>Unzen in Gramm|× 28.35</translation>
    </message>
    <message>
        <source>Grams to ounces|× 0.03527</source>
        <translation>Gramm in Unzen|× 0.03527</translation>
    </message>
    <message>
        <source>Pounds to kilograms|× 0.4536</source>
        <translation>US-Pfund in Kilogramm|× 0.4536</translation>
    </message>
    <message>
        <source>Kilograms to pounds|× 2.205</source>
        <translation>Kilogramm in US-Pfund|× 2.205</translation>
    </message>
    <message>
        <source>Inches to centimeters|× 2.54</source>
        <translation>Zoll in Zentimeter|× 2.54</translation>
    </message>
    <message>
        <source>Centimeters to inches|× 0.3937</source>
        <translation>Zentimeter in Zoll|× 0.3937</translation>
    </message>
    <message>
        <source>Celsius to Fahrenheit|× 1.8, then + 32</source>
        <translation>Celsius in Fahrenheit|× 1.8, dann + 32</translation>
    </message>
    <message>
        <source>Fahrenheit to Celsius|− 32, then ÷ 1.8</source>
        <translation>Fahrenheit in Celsius|− 32, dann ÷ 1.8</translation>
    </message>
    <message>
        <source>Volume, US measures</source>
        <translation>Volumen, US-Maße</translation>
    </message>
    <message>
        <source>Measure|Teaspoons|Tablespoons|Fluid ounces|Milliliters</source>
        <translation>Maß|Teelöffel|Esslöffel|Flüssigunzen|Milliliter</translation>
    </message>
    <message>
        <source>Volume, other measures</source>
        <translation>Volumen, andere Maße</translation>
    </message>
    <message>
        <source>Measure|US fluid ounces|Milliliters</source>
        <translation>Maß|US-Flüssigunzen|Milliliter</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>Weight|Ounces|Pounds|Grams</source>
        <translation>Gewicht|Unzen|US-Pfund|Gramm</translation>
    </message>
    <message>
        <source>Butter, US sticks</source>
        <translation>Butter in US-Sticks</translation>
    </message>
    <message>
        <source>Butter|Tablespoons|Cups|Ounces|Grams</source>
        <translation>Butter|Esslöffel|Cups|Unzen|Gramm</translation>
    </message>
    <message>
        <source>Oven temperatures</source>
        <translation>Backofentemperaturen</translation>
    </message>
    <message>
        <source>Heat|Gas mark|Fahrenheit|Celsius|On the dial</source>
        <translation>Hitze|Gasstufe (UK)|Fahrenheit|Celsius|Am Regler</translation>
    </message>
    <message>
        <source>Common conversions</source>
        <translation>Häufige Umrechnungen</translation>
    </message>
    <message>
        <source>Conversion|Calculation</source>
        <translation>Umrechnung|Rechnung</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <extracomment>The title of a page.</extracomment>
        <translation>All&amp;gemein</translation>
    </message>
    <message>
        <source>At &amp;launch:</source>
        <extracomment>Stands before the list of what opens when the program starts.</extracomment>
        <translation>Beim &amp;Start:</translation>
    </message>
    <message>
        <source>What opens when the program starts</source>
        <translation>Was sich beim Start des Programms öffnet</translation>
    </message>
    <message>
        <source>At launch</source>
        <translation>Beim Start</translation>
    </message>
    <message>
        <source>Finished te&amp;xt:</source>
        <extracomment>Stands before the text that timers show at their end.</extracomment>
        <translation>Te&amp;xt nach Ablauf:</translation>
    </message>
    <message>
        <source>What a timer says when its countdown has ended</source>
        <translation>Was ein Timer anzeigt, wenn sein Countdown abgelaufen ist</translation>
    </message>
    <message>
        <source>Finished text</source>
        <translation>Text nach Ablauf</translation>
    </message>
    <message>
        <source>A timer that is opened from a preset starts at once</source>
        <translation>Ein Timer, der aus einer Vorlage geöffnet wird, startet sofort</translation>
    </message>
    <message>
        <source>Start presets when they are &amp;opened</source>
        <translation>Vor&amp;lagen beim Öffnen starten</translation>
    </message>
    <message>
        <source>The desktop does not tell of countdowns that have ended</source>
        <translation>Der Desktop meldet nicht, wenn ein Countdown abgelaufen ist</translation>
    </message>
    <message>
        <source>Turn off &amp;notifications</source>
        <translation>&amp;Benachrichtigungen ausschalten</translation>
    </message>
    <message>
        <source>Running timers do not show in the panel of the desktop</source>
        <translation>Laufende Timer erscheinen nicht in der Leiste des Desktops</translation>
    </message>
    <message>
        <source>Hide the status &amp;item</source>
        <extracomment>The item of the program in the panel of the desktop.</extracomment>
        <translation>Stat&amp;usanzeige ausblenden</translation>
    </message>
    <message>
        <source>Timers refresh their display less often and show no milliseconds.
Beeps and the end of a countdown come up to 0.2 seconds late.</source>
        <translation>Timer aktualisieren ihre Anzeige seltener und zeigen keine Millisekunden.
Pieptöne und das Ende eines Countdowns kommen bis zu 0,2 Sekunden verspätet.</translation>
    </message>
    <message>
        <source>&amp;Energy saver</source>
        <translation>&amp;Energiesparmodus</translation>
    </message>
    <message>
        <source>&amp;Sounds</source>
        <extracomment>The title of a page.</extracomment>
        <translation>Tö&amp;ne</translation>
    </message>
    <message>
        <source>No timer makes a sound</source>
        <translation>Kein Timer gibt einen Ton von sich</translation>
    </message>
    <message>
        <source>&amp;Mute all timers</source>
        <translation>Alle Timer stu&amp;mmschalten</translation>
    </message>
    <message>
        <source>The last seconds of a countdown pass in silence</source>
        <translation>Die letzten Sekunden eines Countdowns vergehen still</translation>
    </message>
    <message>
        <source>Turn off countdown &amp;beeps</source>
        <translation>Countdown-&amp;Pieptöne ausschalten</translation>
    </message>
    <message>
        <source>&amp;Alarm:</source>
        <translation>&amp;Alarm:</translation>
    </message>
    <message>
        <source>Alarm sound of new timers</source>
        <translation>Alarmton neuer Timer</translation>
    </message>
    <message>
        <source>Play the alarm sound</source>
        <translation>Alarmton abspielen</translation>
    </message>
    <message>
        <source>Stop the alarm sound</source>
        <translation>Alarmton stoppen</translation>
    </message>
    <message>
        <source>In use:</source>
        <extracomment>Stands before the name of a sound.</extracomment>
        <translation>Verwendet:</translation>
    </message>
    <message>
        <source>Alarm sound in use</source>
        <translation>Verwendeter Alarmton</translation>
    </message>
    <message>
        <source>Alarm sound that cannot be played</source>
        <translation>Nicht abspielbarer Alarmton</translation>
    </message>
    <message>
        <source>&amp;Countdown:</source>
        <translation>&amp;Countdown:</translation>
    </message>
    <message>
        <source>Countdown sound of new timers</source>
        <translation>Countdown-Ton neuer Timer</translation>
    </message>
    <message>
        <source>Play the countdown sound</source>
        <translation>Countdown-Ton abspielen</translation>
    </message>
    <message>
        <source>Stop the countdown sound</source>
        <translation>Countdown-Ton stoppen</translation>
    </message>
    <message>
        <source>Countdown sound in use</source>
        <translation>Verwendeter Countdown-Ton</translation>
    </message>
    <message>
        <source>Countdown sound that cannot be played</source>
        <translation>Nicht abspielbarer Countdown-Ton</translation>
    </message>
    <message>
        <source>Timers opened from now on begin with these sounds. Each timer offers a choice of its own under More Options.</source>
        <translation>Timer, die Sie ab jetzt öffnen, beginnen mit diesen Tönen. Jeder Timer bietet unter „Mehr Optionen“ eine eigene Auswahl.</translation>
    </message>
    <message>
        <source>Mute All</source>
        <translation>Alle stummschalten</translation>
    </message>
    <message>
        <source>Unmute All</source>
        <translation>Stummschaltung aufheben</translation>
    </message>
    <message>
        <source>Select a sound file</source>
        <translation>Audiodatei auswählen</translation>
    </message>
    <message>
        <source>Unplayable:</source>
        <extracomment>Stands before the name of the file of a sound.</extracomment>
        <translation>Nicht abspielbar:</translation>
    </message>
    <message>
        <source>Missing:</source>
        <translation>Fehlt:</translation>
    </message>
    <message>
        <source>Running timers do not show in the panel</source>
        <extracomment>A line below “Hide the status item”; as short as possible.</extracomment>
        <translation>Laufende Timer erscheinen nicht in der Leiste</translation>
    </message>
    <message>
        <source>No milliseconds; beeps and alarms up to 0.2 s late</source>
        <extracomment>A line below “Energy saver”; as short as possible.</extracomment>
        <translation>Keine Millisekunden; Pieptöne und Alarme kommen bis zu 0,2 Sekunden verspätet</translation>
    </message>
</context>
<context>
    <name>Preset</name>
    <message>
        <source>Preset %1</source>
        <extracomment>In the display of a timer opened from a preset; %1 is its number.</extracomment>
        <translation>Vorlage %1</translation>
    </message>
    <message>
        <source>Saved to Preset %1</source>
        <extracomment>In the display of a timer saved into a preset; %1 is its number.</extracomment>
        <translation>Als Vorlage %1 gespeichert</translation>
    </message>
</context>
<context>
    <name>PresetsMenu</name>
    <message>
        <source>&amp;Presets</source>
        <translation>&amp;Vorlagen</translation>
    </message>
    <message>
        <source>Save Wuffer to Preset</source>
        <translation>Timer als Vorlage speichern</translation>
    </message>
    <message>
        <source>Shortcut: Hold Control and press a number key</source>
        <translation>Tastenkürzel: Strg + Zifferntaste</translation>
    </message>
    <message>
        <source>⌘%1 (Overwrite %2)</source>
        <extracomment>The number of a preset, and the name and time in it, which saving replaces.</extracomment>
        <translation>⌘%1 (überschreibt %2)</translation>
    </message>
</context>
<context>
    <name>SoundEntries</name>
    <message>
        <source>Wuff (Default)</source>
        <extracomment>A sound of the program: the bark of a dog.</extracomment>
        <translation>Wuff (Standard)</translation>
    </message>
    <message>
        <source>Crow (Default)</source>
        <extracomment>A sound of the program: the caw of a crow.</extracomment>
        <translation>Krähe (Standard)</translation>
    </message>
    <message>
        <source>Select another sound...</source>
        <translation>Anderen Ton auswählen...</translation>
    </message>
    <message>
        <source>Clear custom sounds</source>
        <translation>Eigene Töne entfernen</translation>
    </message>
    <message>
        <source>Manage Sounds...</source>
        <translation>Töne verwalten...</translation>
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
        <translation>Zieldatum</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Ring &amp;at:</source>
        <extracomment>Stands before the date and time at which a timer rings.</extracomment>
        <translation>Alarm &amp;am:</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum und Uhrzeit</translation>
    </message>
    <message>
        <source>How long that is from now</source>
        <translation>Wie lange es bis dahin dauert</translation>
    </message>
</context>
<context>
    <name>TargetTimeSheet</name>
    <message>
        <source>Previous month</source>
        <extracomment>Accessible name: the arrow of the calendar that turns one month back.</extracomment>
        <translation>Voriger Monat</translation>
    </message>
    <message>
        <source>Next month</source>
        <extracomment>Accessible name: the arrow of the calendar that turns one month on.</extracomment>
        <translation>Nächster Monat</translation>
    </message>
</context>
<context>
    <name>TimeDistance</name>
    <message>
        <source>%1 d</source>
        <extracomment>Days, hours, minutes and seconds, abbreviated, as in “in 4 h 12 min”.</extracomment>
        <translation>%1 Tg.</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 Std.</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 Min.</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 Sek.</translation>
    </message>
    <message>
        <source>now</source>
        <extracomment>The time that is left until a date: none.</extracomment>
        <translation>jetzt</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>Two units of a time, the larger first: “4 h 12 min”.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>in %1</source>
        <extracomment>The time that is left until a date: “in 4 h 12 min”.</extracomment>
        <translation>in %1</translation>
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
        <translation>d t tg tag tage tagen</translation>
    </message>
    <message>
        <source>h hr hrs hour hours</source>
        <extracomment>The same for hours.</extracomment>
        <translation>h std stdn stunde stunden</translation>
    </message>
    <message>
        <source>m min mins minute minutes</source>
        <extracomment>The same for minutes.</extracomment>
        <translation>m min minute minuten</translation>
    </message>
    <message>
        <source>s sec secs second seconds</source>
        <extracomment>The same for seconds.</extracomment>
        <translation>s sek sekunde sekunden</translation>
    </message>
    <message>
        <source>and</source>
        <extracomment>The word between two units: “1 hour and 5 minutes”.</extracomment>
        <translation>und</translation>
    </message>
</context>
<context>
    <name>TimerRun</name>
    <message>
        <source>%1 (x%2)</source>
        <extracomment>A time, and the number of the pass of a timer that loops.</extracomment>
        <translation>%1 (x%2)</translation>
    </message>
</context>
<context>
    <name>TimerTexts</name>
    <message>
        <source>Start</source>
        <extracomment>On the button and in the menu: runs the timer.</extracomment>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>On the button and in the menu: stops the running timer.</extracomment>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>Reset</source>
        <extracomment>On the button and in the menu, during an alarm: ends the alarm.</extracomment>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Start Chain</source>
        <extracomment>On the button and in the menu, at the first timer of a chain: runs the chain.</extracomment>
        <translation>Kette starten</translation>
    </message>
    <message>
        <source>Chained</source>
        <extracomment>On the disabled button and in the menu: another timer starts this one.</extracomment>
        <translation>Verkettet</translation>
    </message>
    <message>
        <source>Stopwatch</source>
        <extracomment>A timer that counts up, and the menu item that makes a timer one.</extracomment>
        <translation>Stoppuhr</translation>
    </message>
    <message>
        <source>Timer</source>
        <extracomment>The menu item that makes a stopwatch a timer that counts down.</extracomment>
        <translation>Timer</translation>
    </message>
    <message>
        <source>More Options</source>
        <extracomment>Opens the drawer with more options of a timer.</extracomment>
        <translation>Mehr Optionen</translation>
    </message>
    <message>
        <source>Hide Options</source>
        <extracomment>Closes the drawer with more options of a timer.</extracomment>
        <translation>Weniger Optionen</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <extracomment>A line of a list: the name of a timer and a time, such as “Tea - 0h 5m 0s”.</extracomment>
        <translation>%1 – %2</translation>
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
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>The name of this timer</source>
        <translation>Der Name dieses Timers</translation>
    </message>
    <message>
        <source>Name</source>
        <extracomment>Accessible name: the name of the timer.</extracomment>
        <translation>Name</translation>
    </message>
    <message>
        <source>Name on the full screen</source>
        <extracomment>Accessible name: the name of the timer.</extracomment>
        <translation>Name im Vollbild</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>Accessible name: the time that the timer shows.</extracomment>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Elapsed time</source>
        <translation>Verstrichene Zeit</translation>
    </message>
    <message>
        <source>Milliseconds</source>
        <translation>Millisekunden</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Stunden</translation>
    </message>
    <message>
        <source>h&amp;ours</source>
        <extracomment>Stands after a number field, with those for minutes and seconds in one line.</extracomment>
        <translation>St&amp;unden</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>&amp;minutes</source>
        <translation>&amp;Minuten</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>&amp;seconds</source>
        <translation>&amp;Sekunden</translation>
    </message>
    <message>
        <source>&amp;Keep wuffing</source>
        <extracomment>A check box: the alarm goes on until the user stops it. The program&apos;s alarm is the bark of a dog, “wuff”.</extracomment>
        <translation>&amp;Weiterwuffen</translation>
    </message>
    <message>
        <source>Fill the screen when the countdown starts; any key or click ends it</source>
        <translation>Beim Start des Countdowns ins Vollbild wechseln; jede Taste und jeder Klick beendet es</translation>
    </message>
    <message>
        <source>Fu&amp;ll screen</source>
        <extracomment>A check box.</extracomment>
        <translation>Vo&amp;llbild</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>Accessible name: the drawer with more options of a timer.</extracomment>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>When fi&amp;nished:</source>
        <extracomment>Stands before the list of finish actions.</extracomment>
        <translation>&amp;Nach Ablauf:</translation>
    </message>
    <message>
        <source>What happens when the countdown has ended and its alarm is over</source>
        <translation>Was geschieht, wenn der Countdown abgelaufen und der Alarm vorbei ist</translation>
    </message>
    <message>
        <source>When finished</source>
        <translation>Nach Ablauf</translation>
    </message>
    <message>
        <source>What can happen when the countdown ends</source>
        <translation>Was nach Ablauf des Countdowns geschehen kann</translation>
    </message>
    <message>
        <source>Help on finish actions</source>
        <translation>Hilfe zu Aktionen nach Ablauf</translation>
    </message>
    <message>
        <source>What the finish action starts</source>
        <extracomment>Accessible name of the list of presets, or of the linked timer.</extracomment>
        <translation>Was nach Ablauf gestartet wird</translation>
    </message>
    <message>
        <source>Choose from the open timers</source>
        <translation>Unter den offenen Timern wählen</translation>
    </message>
    <message>
        <source>Choose the timer to start</source>
        <translation>Timer wählen, der gestartet wird</translation>
    </message>
    <message>
        <source>&amp;Alarm:</source>
        <extracomment>Stands before the list of sounds.</extracomment>
        <translation>&amp;Alarm:</translation>
    </message>
    <message>
        <source>Alarm sound</source>
        <translation>Alarmton</translation>
    </message>
    <message>
        <source>Play the alarm sound</source>
        <translation>Alarmton abspielen</translation>
    </message>
    <message>
        <source>Stop the alarm sound</source>
        <translation>Alarmton stoppen</translation>
    </message>
    <message>
        <source>&amp;Countdown:</source>
        <extracomment>Stands before the list of sounds for the last seconds of a countdown.</extracomment>
        <translation>&amp;Countdown:</translation>
    </message>
    <message>
        <source>Countdown sound</source>
        <translation>Countdown-Ton</translation>
    </message>
    <message>
        <source>Play the countdown sound</source>
        <translation>Countdown-Ton abspielen</translation>
    </message>
    <message>
        <source>Stop the countdown sound</source>
        <translation>Countdown-Ton stoppen</translation>
    </message>
    <message>
        <source>Elapsed: %1</source>
        <extracomment>The time since the start of a timer.</extracomment>
        <translation>Verstrichen: %1</translation>
    </message>
    <message>
        <source>Ready when you are</source>
        <translation>Bereit, wenn Sie es sind</translation>
    </message>
    <message>
        <source>The preset that this timer turns into and runs when it has finished</source>
        <translation>Die Vorlage, die dieser Timer nach Ablauf übernimmt und startet</translation>
    </message>
    <message>
        <source>Control-Drag a Wuffer</source>
        <extracomment>In place of the name of the timer to start: how to choose one.</extracomment>
        <translation>Timer mit Strg ziehen</translation>
    </message>
    <message>
        <source>When finished, this timer starts “%1”</source>
        <translation>Nach Ablauf startet dieser Timer „%1“</translation>
    </message>
    <message>
        <source>Hold Control and drag the window of another timer onto this one: it starts when this one has finished</source>
        <translation>Bei gedrückter Strg-Taste das Fenster eines anderen Timers auf dieses ziehen: Er startet, wenn dieser Timer abgelaufen ist</translation>
    </message>
    <message>
        <source>Sound is off</source>
        <translation>Ton ist aus</translation>
    </message>
    <message>
        <source>Sound is on</source>
        <translation>Ton ist an</translation>
    </message>
    <message>
        <source>Let all timers be heard again</source>
        <translation>Stummschaltung aller Timer aufheben</translation>
    </message>
    <message>
        <source>Mute all timers</source>
        <translation>Alle Timer stummschalten</translation>
    </message>
    <message>
        <source>A timer fills the screen</source>
        <translation>Ein Timer läuft im Vollbild</translation>
    </message>
</context>
<context>
    <name>WufferController</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Converter</source>
        <translation>Umrechner</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>Küchenmaße</translation>
    </message>
    <message>
        <source>Wuffer Help</source>
        <translation>Wuffer-Hilfe</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>About Wuffer</source>
        <translation>Info over Wuffer</translation>
    </message>
    <message>
        <source>Countdown timers for the desktop</source>
        <translation>Afteltimers voor het bureaublad</translation>
    </message>
    <message>
        <source>Copyright © 2026 The Wuffer developers
Free software under the MIT License: use it, change it
and pass it on. It comes without any warranty.</source>
        <translation>Copyright © 2026 The Wuffer developers
Vrije software onder de MIT-licentie: gebruiken, wijzigen
en verspreiden is toegestaan. Zonder enige garantie.</translation>
    </message>
    <message>
        <source>Libraries and their licenses</source>
        <translation>Bibliotheken en hun licenties</translation>
    </message>
</context>
<context>
    <name>AboutDialog</name>
    <message>
        <source>sound output</source>
        <extracomment>What a library is used for.</extracomment>
        <translation>geluidsuitvoer</translation>
    </message>
    <message>
        <source>sound files</source>
        <translation>geluidsbestanden</translation>
    </message>
    <message>
        <source>MP3 files</source>
        <translation>MP3-bestanden</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versie %1</translation>
    </message>
    <message>
        <source>windows</source>
        <extracomment>What a library is used for.</extracomment>
        <translation>vensters</translation>
    </message>
    <message>
        <source>X Window System</source>
        <translation>X Window System</translation>
    </message>
    <message>
        <source>windows, session bus</source>
        <extracomment>What a library is used for.</extracomment>
        <translation>vensters, sessiebus</translation>
    </message>
</context>
<context>
    <name>AlarmAnnouncement</name>
    <message>
        <source>Alarm ended</source>
        <extracomment>Screen readers say it after the name of a timer.</extracomment>
        <translation>Alarm beëindigd</translation>
    </message>
</context>
<context>
    <name>Chain</name>
    <message>
        <source>Wuffer Chain - %1 of %2</source>
        <extracomment>The place of a timer in a chain: position and number of timers.</extracomment>
        <translation>Timerketen - %1 van %2</translation>
    </message>
    <message>
        <source>Started by “%1”</source>
        <extracomment>Names of timers.</extracomment>
        <translation>Gestart door ‘%1’</translation>
    </message>
    <message>
        <source>Starts “%1”</source>
        <translation>Start ‘%1’</translation>
    </message>
    <message>
        <source>Started by “%1”; starts “%2”</source>
        <translation>Gestart door ‘%1’; start ‘%2’</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Countdown timers for the desktop. If the program is already running, it carries out what is asked for here.</source>
        <translation>Afteltimers voor het bureaublad. Als het programma al draait, voert dat exemplaar uit wat hier wordt gevraagd.</translation>
    </message>
    <message>
        <source>Wait for the session bus to say what to open.</source>
        <translation>Wachten tot de sessiebus aangeeft wat er geopend moet worden.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Deze helptekst tonen.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>De versie tonen.</translation>
    </message>
    <message>
        <source>Unexpected argument “%1”.</source>
        <translation>Onbekend argument: ‘%1’.</translation>
    </message>
    <message>
        <source>Open a new timer.</source>
        <translation>Een nieuwe timer openen.</translation>
    </message>
    <message>
        <source>Start every timer.</source>
        <translation>Alle timers starten.</translation>
    </message>
    <message>
        <source>Show the preferences.</source>
        <translation>De voorkeuren tonen.</translation>
    </message>
    <message>
        <source>Show the unit converter.</source>
        <translation>De omrekenaar voor eenheden tonen.</translation>
    </message>
</context>
<context>
    <name>Converter</name>
    <message>
        <source>Volume (US measures)</source>
        <translation>Volume (Amerikaans)</translation>
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
        <translation>&amp;Fluid ounces:</translation>
    </message>
    <message>
        <source>Fluid ounces</source>
        <translation>Fluid ounces</translation>
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
        <translation>&amp;Eetlepels:</translation>
    </message>
    <message>
        <source>Tablespoons</source>
        <translation>Eetlepels</translation>
    </message>
    <message>
        <source>T&amp;easpoons:</source>
        <translation>Thee&amp;lepels:</translation>
    </message>
    <message>
        <source>Teaspoons</source>
        <translation>Theelepels</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>&amp;Grams:</source>
        <translation>&amp;Gram:</translation>
    </message>
    <message>
        <source>Grams</source>
        <translation>Gram</translation>
    </message>
    <message>
        <source>&amp;Ounces:</source>
        <translation>&amp;Ounces:</translation>
    </message>
    <message>
        <source>Ounces</source>
        <translation>Ounces</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatuur</translation>
    </message>
    <message>
        <source>Cel&amp;sius:</source>
        <translation>Cel&amp;sius:</translation>
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
        <translation>Niets doen</translation>
    </message>
    <message>
        <source>Loop this Wuffer</source>
        <translation>Deze timer herhalen</translation>
    </message>
    <message>
        <source>Start a Preset</source>
        <translation>Een preset starten</translation>
    </message>
    <message>
        <source>Start other open Wuffer</source>
        <translation>Andere open timer starten</translation>
    </message>
</context>
<context>
    <name>FreedesktopNotifications</name>
    <message>
        <source>Show</source>
        <extracomment>A button of a notification: brings the timer to the front.</extracomment>
        <translation>Tonen</translation>
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
            <numerusform>%n timer is afgelopen</numerusform>
            <numerusform>%n timers zijn afgelopen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>en nog %n</numerusform>
            <numerusform>en nog %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Back</source>
        <extracomment>Goes to the page of the help that was shown before.</extracomment>
        <translation>Terug</translation>
    </message>
    <message>
        <source>Forward</source>
        <extracomment>Goes to the page of the help that was shown after this one.</extracomment>
        <translation>Vooruit</translation>
    </message>
    <message>
        <source>Search the help</source>
        <translation>In de help zoeken</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Zoeken</translation>
    </message>
    <message>
        <source>Pages</source>
        <extracomment>Accessible name of the list of pages.</extracomment>
        <translation>Pagina’s</translation>
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
        <translation>Menu %1</translation>
    </message>
    <message>
        <source>This help is available in English only.</source>
        <extracomment>Stands above the pages of the help in languages that the help is not translated to.</extracomment>
        <translation>Deze help is alleen in het Engels beschikbaar.</translation>
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
        <translation>%1 van %2</translation>
    </message>
    <message>
        <source>Found: %1</source>
        <translation>Gevonden: %1</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Niets gevonden</translation>
    </message>
</context>
<context>
    <name>Home</name>
    <message>
        <source>New Timer</source>
        <translation>Nieuwe timer</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Presets</translation>
    </message>
</context>
<context>
    <name>KeepOnTopItem</name>
    <message>
        <source>Keep on &amp;Top</source>
        <translation>Altijd &amp;bovenop</translation>
    </message>
</context>
<context>
    <name>KeepWuffing</name>
    <message>
        <source>A stopwatch has no alarm that could go on</source>
        <translation>Een stopwatch heeft geen alarm dat kan aanhouden</translation>
    </message>
    <message>
        <source>Only a timer that is to “%1” when finished can go on wuffing</source>
        <extracomment>%1 is the finish action “Do Nothing”.</extracomment>
        <translation>Alleen met ‘%1’ als actie na afloop kan een timer blijven blaffen</translation>
    </message>
    <message>
        <source>The sound of all timers is off</source>
        <translation>Het geluid van alle timers staat uit</translation>
    </message>
    <message>
        <source>Repeat the alarm sound until you press %1</source>
        <extracomment>%1 is the title of the button “Reset”.</extracomment>
        <translation>Het alarmgeluid herhalen tot op ‘%1’ wordt gedrukt</translation>
    </message>
</context>
<context>
    <name>LaunchChoices</name>
    <message>
        <source>Open a Wuffer</source>
        <translation>Een timer openen</translation>
    </message>
    <message>
        <source>Do Nothing</source>
        <translation>Niets doen</translation>
    </message>
    <message>
        <source>Open Preset ⌘1</source>
        <translation>Preset ⌘1 openen</translation>
    </message>
    <message>
        <source>Open and Start Preset ⌘1</source>
        <translation>Preset ⌘1 openen en starten</translation>
    </message>
</context>
<context>
    <name>LinkMenu</name>
    <message>
        <source>When F&amp;inished, Start</source>
        <translation>Na &amp;afloop starten</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Geen</translation>
    </message>
    <message>
        <source>No &amp;Other Timer Is Open</source>
        <translation>Geen andere timer ge&amp;opend</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Bestand</translation>
    </message>
    <message>
        <source>&amp;New Timer</source>
        <translation>&amp;Nieuwe timer</translation>
    </message>
    <message>
        <source>Start &amp;All</source>
        <translation>A&amp;lle starten</translation>
    </message>
    <message>
        <source>Mute All</source>
        <translation>Alle dempen</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Voorkeuren…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Sluiten</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Afsluiten</translation>
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
        <translation>&amp;Hernoemen</translation>
    </message>
    <message>
        <source>Stopwatch</source>
        <translation>Stopwatch</translation>
    </message>
    <message>
        <source>Count Down to a &amp;Date…</source>
        <translation>Aftellen tot &amp;datum…</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Resetten</translation>
    </message>
    <message>
        <source>&amp;Keep Wuffing</source>
        <translation>&amp;Blijven blaffen</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>&amp;Volledig scherm</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Meer opties</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Venster</translation>
    </message>
    <message>
        <source>&amp;Minimize</source>
        <translation>&amp;Minimaliseren</translation>
    </message>
    <message>
        <source>&amp;Converter</source>
        <translation>&amp;Omrekenaar</translation>
    </message>
    <message>
        <source>M&amp;easurements</source>
        <translation>&amp;Keukenmaten</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>Wuffer &amp;Help</source>
        <translation>Wuffer-&amp;help</translation>
    </message>
    <message>
        <source>Wuffer on the &amp;Web</source>
        <translation>Wuffer op het &amp;web</translation>
    </message>
    <message>
        <source>&amp;About Wuffer</source>
        <translation>&amp;Info over Wuffer</translation>
    </message>
</context>
<context>
    <name>MeasurementsPanel</name>
    <message>
        <source>Kitchen measurements</source>
        <translation>Keukenmaten</translation>
    </message>
    <message>
        <source>1 teaspoon|1 tsp|⅓ tbsp|⅙ fl oz|4.93 mL</source>
        <translation>1 theelepel|1 tl|⅓ el|⅙ fl oz|4.93 ml</translation>
    </message>
    <message>
        <source>1 tablespoon|3 tsp|1 tbsp|½ fl oz|14.79 mL</source>
        <translation>1 eetlepel|3 tl|1 el|½ fl oz|14.79 ml</translation>
    </message>
    <message>
        <source>1 fluid ounce|6 tsp|2 tbsp|1 fl oz|29.57 mL</source>
        <translation>1 fluid ounce|6 tl|2 el|1 fl oz|29.57 ml</translation>
    </message>
    <message>
        <source>¼ cup|12 tsp|4 tbsp|2 fl oz|59.15 mL</source>
        <translation>¼ cup|12 tl|4 el|2 fl oz|59.15 ml</translation>
    </message>
    <message>
        <source>⅓ cup|16 tsp|5⅓ tbsp|2⅔ fl oz|78.86 mL</source>
        <translation>⅓ cup|16 tl|5⅓ el|2⅔ fl oz|78.86 ml</translation>
    </message>
    <message>
        <source>½ cup|24 tsp|8 tbsp|4 fl oz|118.29 mL</source>
        <translation>½ cup|24 tl|8 el|4 fl oz|118.29 ml</translation>
    </message>
    <message>
        <source>⅔ cup|32 tsp|10⅔ tbsp|5⅓ fl oz|157.73 mL</source>
        <translation>⅔ cup|32 tl|10⅔ el|5⅓ fl oz|157.73 ml</translation>
    </message>
    <message>
        <source>¾ cup|36 tsp|12 tbsp|6 fl oz|177.44 mL</source>
        <translation>¾ cup|36 tl|12 el|6 fl oz|177.44 ml</translation>
    </message>
    <message>
        <source>1 cup|48 tsp|16 tbsp|8 fl oz|236.59 mL</source>
        <translation>1 cup|48 tl|16 el|8 fl oz|236.59 ml</translation>
    </message>
    <message>
        <source>1 pint|96 tsp|32 tbsp|16 fl oz|473.18 mL</source>
        <translation>1 pint|96 tl|32 el|16 fl oz|473.18 ml</translation>
    </message>
    <message>
        <source>1 quart|192 tsp|64 tbsp|32 fl oz|946.35 mL</source>
        <translation>1 quart|192 tl|64 el|32 fl oz|946.35 ml</translation>
    </message>
    <message>
        <source>1 gallon|768 tsp|256 tbsp|128 fl oz|3785.41 mL</source>
        <translation>1 gallon|768 tl|256 el|128 fl oz|3785.41 ml</translation>
    </message>
    <message>
        <source>1 metric teaspoon|0.17 fl oz|5 mL</source>
        <translation>1 metrische theelepel|0.17 fl oz|5 ml</translation>
    </message>
    <message>
        <source>1 metric tablespoon|0.51 fl oz|15 mL</source>
        <translation>1 metrische eetlepel|0.51 fl oz|15 ml</translation>
    </message>
    <message>
        <source>1 Australian tablespoon|0.68 fl oz|20 mL</source>
        <translation>1 Australische eetlepel|0.68 fl oz|20 ml</translation>
    </message>
    <message>
        <source>1 Japanese cup|6.76 fl oz|200 mL</source>
        <translation>1 Japanse cup|6.76 fl oz|200 ml</translation>
    </message>
    <message>
        <source>1 metric cup|8.45 fl oz|250 mL</source>
        <translation>1 metrische cup|8.45 fl oz|250 ml</translation>
    </message>
    <message>
        <source>1 liter|33.81 fl oz|1000 mL</source>
        <translation>1 liter|33.81 fl oz|1000 ml</translation>
    </message>
    <message>
        <source>1 UK fluid ounce|0.96 fl oz|28.41 mL</source>
        <translation>1 Britse fluid ounce|0.96 fl oz|28.41 ml</translation>
    </message>
    <message>
        <source>1 UK pint|19.22 fl oz|568.26 mL</source>
        <translation>1 Britse pint|19.22 fl oz|568.26 ml</translation>
    </message>
    <message>
        <source>1 UK quart|38.43 fl oz|1136.52 mL</source>
        <translation>1 Britse quart|38.43 fl oz|1136.52 ml</translation>
    </message>
    <message>
        <source>1 UK gallon|153.72 fl oz|4546.09 mL</source>
        <translation>1 Britse gallon|153.72 fl oz|4546.09 ml</translation>
    </message>
    <message>
        <source>1 ounce|1 oz|0.0625 lb|28.35 g</source>
        <translation>1 ounce|1 oz|0.0625 lb|28.35 g</translation>
    </message>
    <message>
        <source>2 ounces|2 oz|0.125 lb|56.70 g</source>
        <translation>2 ounces|2 oz|0.125 lb|56.70 g</translation>
    </message>
    <message>
        <source>¼ pound|4 oz|0.25 lb|113.40 g</source>
        <translation>¼ pound|4 oz|0.25 lb|113.40 g</translation>
    </message>
    <message>
        <source>½ pound|8 oz|0.5 lb|226.80 g</source>
        <translation>½ pound|8 oz|0.5 lb|226.80 g</translation>
    </message>
    <message>
        <source>¾ pound|12 oz|0.75 lb|340.19 g</source>
        <translation>¾ pound|12 oz|0.75 lb|340.19 g</translation>
    </message>
    <message>
        <source>1 pound|16 oz|1 lb|453.59 g</source>
        <translation>1 pound|16 oz|1 lb|453.59 g</translation>
    </message>
    <message>
        <source>2 pounds|32 oz|2 lb|907.18 g</source>
        <translation>2 pounds|32 oz|2 lb|907.18 g</translation>
    </message>
    <message>
        <source>50 grams|1.76 oz|0.110 lb|50 g</source>
        <translation>50 gram|1.76 oz|0.110 lb|50 g</translation>
    </message>
    <message>
        <source>100 grams|3.53 oz|0.220 lb|100 g</source>
        <translation>100 gram|3.53 oz|0.220 lb|100 g</translation>
    </message>
    <message>
        <source>250 grams|8.82 oz|0.551 lb|250 g</source>
        <translation>250 gram|8.82 oz|0.551 lb|250 g</translation>
    </message>
    <message>
        <source>500 grams|17.64 oz|1.102 lb|500 g</source>
        <translation>500 gram|17.64 oz|1.102 lb|500 g</translation>
    </message>
    <message>
        <source>1 kilogram|35.27 oz|2.205 lb|1000 g</source>
        <translation>1 kilogram|35.27 oz|2.205 lb|1000 g</translation>
    </message>
    <message>
        <source>⅛ stick|1 tbsp|1⁄16 cup|½ oz|14.17 g</source>
        <translation>⅛ stick|1 el|1⁄16 cup|½ oz|14.17 g</translation>
    </message>
    <message>
        <source>¼ stick|2 tbsp|⅛ cup|1 oz|28.35 g</source>
        <translation>¼ stick|2 el|⅛ cup|1 oz|28.35 g</translation>
    </message>
    <message>
        <source>½ stick|4 tbsp|¼ cup|2 oz|56.70 g</source>
        <translation>½ stick|4 el|¼ cup|2 oz|56.70 g</translation>
    </message>
    <message>
        <source>1 stick|8 tbsp|½ cup|4 oz|113.40 g</source>
        <translation>1 stick|8 el|½ cup|4 oz|113.40 g</translation>
    </message>
    <message>
        <source>2 sticks|16 tbsp|1 cup|8 oz|226.80 g</source>
        <translation>2 sticks|16 el|1 cup|8 oz|226.80 g</translation>
    </message>
    <message>
        <source>4 sticks|32 tbsp|2 cups|16 oz|453.59 g</source>
        <translation>4 sticks|32 el|2 cups|16 oz|453.59 g</translation>
    </message>
    <message>
        <source>Very cool|Gas ¼|225 °F|107 °C|110 °C</source>
        <translation>Zeer laag|Gas ¼|225 °F|107 °C|110 °C</translation>
    </message>
    <message>
        <source>Very cool|Gas ½|250 °F|121 °C|120 °C</source>
        <translation>Zeer laag|Gas ½|250 °F|121 °C|120 °C</translation>
    </message>
    <message>
        <source>Cool|Gas 1|275 °F|135 °C|140 °C</source>
        <translation>Laag|Gas 1|275 °F|135 °C|140 °C</translation>
    </message>
    <message>
        <source>Cool|Gas 2|300 °F|149 °C|150 °C</source>
        <translation>Laag|Gas 2|300 °F|149 °C|150 °C</translation>
    </message>
    <message>
        <source>Warm|Gas 3|325 °F|163 °C|160 °C</source>
        <translation>Matig warm|Gas 3|325 °F|163 °C|160 °C</translation>
    </message>
    <message>
        <source>Moderate|Gas 4|350 °F|177 °C|180 °C</source>
        <translation>Warm|Gas 4|350 °F|177 °C|180 °C</translation>
    </message>
    <message>
        <source>Fairly hot|Gas 5|375 °F|191 °C|190 °C</source>
        <translation>Vrij heet|Gas 5|375 °F|191 °C|190 °C</translation>
    </message>
    <message>
        <source>Fairly hot|Gas 6|400 °F|204 °C|200 °C</source>
        <translation>Vrij heet|Gas 6|400 °F|204 °C|200 °C</translation>
    </message>
    <message>
        <source>Hot|Gas 7|425 °F|218 °C|220 °C</source>
        <translation>Heet|Gas 7|425 °F|218 °C|220 °C</translation>
    </message>
    <message>
        <source>Very hot|Gas 8|450 °F|232 °C|230 °C</source>
        <translation>Zeer heet|Gas 8|450 °F|232 °C|230 °C</translation>
    </message>
    <message>
        <source>Very hot|Gas 9|475 °F|246 °C|250 °C</source>
        <translation>Zeer heet|Gas 9|475 °F|246 °C|250 °C</translation>
    </message>
    <message>
        <source>Teaspoons to milliliters|× 4.929</source>
        <translation>Theelepels naar milliliter|× 4.929</translation>
    </message>
    <message>
        <source>Tablespoons to milliliters|× 14.79</source>
        <translation>Eetlepels naar milliliter|× 14.79</translation>
    </message>
    <message>
        <source>Fluid ounces to milliliters|× 29.57</source>
        <translation>Fluid ounces naar milliliter|× 29.57</translation>
    </message>
    <message>
        <source>Cups to milliliters|× 236.6</source>
        <translation>Cups naar milliliter|× 236.6</translation>
    </message>
    <message>
        <source>Milliliters to fluid ounces|× 0.03381</source>
        <translation>Milliliter naar fluid ounces|× 0.03381</translation>
    </message>
    <message>
        <source>Quarts to liters|× 0.9464</source>
        <translation>Quarts naar liter|× 0.9464</translation>
    </message>
    <message>
        <source>Liters to quarts|× 1.057</source>
        <translation>Liter naar quarts|× 1.057</translation>
    </message>
    <message>
        <source>Ounces to grams|× 28.35</source>
        <translation>Ounces naar gram|× 28.35</translation>
    </message>
    <message>
        <source>Grams to ounces|× 0.03527</source>
        <translation>Gram naar ounces|× 0.03527</translation>
    </message>
    <message>
        <source>Pounds to kilograms|× 0.4536</source>
        <translation>Pounds naar kilogram|× 0.4536</translation>
    </message>
    <message>
        <source>Kilograms to pounds|× 2.205</source>
        <translation>Kilogram naar pounds|× 2.205</translation>
    </message>
    <message>
        <source>Inches to centimeters|× 2.54</source>
        <translation>Inch naar centimeter|× 2.54</translation>
    </message>
    <message>
        <source>Centimeters to inches|× 0.3937</source>
        <translation>Centimeter naar inch|× 0.3937</translation>
    </message>
    <message>
        <source>Celsius to Fahrenheit|× 1.8, then + 32</source>
        <translation>Celsius naar Fahrenheit|× 1.8, dan + 32</translation>
    </message>
    <message>
        <source>Fahrenheit to Celsius|− 32, then ÷ 1.8</source>
        <translation>Fahrenheit naar Celsius|− 32, dan ÷ 1.8</translation>
    </message>
    <message>
        <source>Volume, US measures</source>
        <translation>Volume, Amerikaanse maten</translation>
    </message>
    <message>
        <source>Measure|Teaspoons|Tablespoons|Fluid ounces|Milliliters</source>
        <translation>Maat|Theelepels|Eetlepels|Fluid ounces|Milliliter</translation>
    </message>
    <message>
        <source>Volume, other measures</source>
        <translation>Volume, andere maten</translation>
    </message>
    <message>
        <source>Measure|US fluid ounces|Milliliters</source>
        <translation>Maat|Amerikaanse fluid ounces|Milliliter</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>Weight|Ounces|Pounds|Grams</source>
        <translation>Gewicht|Ounces|Pounds|Gram</translation>
    </message>
    <message>
        <source>Butter, US sticks</source>
        <translation>Boter, Amerikaanse sticks</translation>
    </message>
    <message>
        <source>Butter|Tablespoons|Cups|Ounces|Grams</source>
        <translation>Boter|Eetlepels|Cups|Ounces|Gram</translation>
    </message>
    <message>
        <source>Oven temperatures</source>
        <translation>Oventemperaturen</translation>
    </message>
    <message>
        <source>Heat|Gas mark|Fahrenheit|Celsius|On the dial</source>
        <translation>Oven|Gasstand|Fahrenheit|Celsius|Instellen op</translation>
    </message>
    <message>
        <source>Common conversions</source>
        <translation>Veelgebruikte omrekeningen</translation>
    </message>
    <message>
        <source>Conversion|Calculation</source>
        <translation>Omrekening|Berekening</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Preferences</source>
        <translation>Voorkeuren</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <extracomment>The title of a page.</extracomment>
        <translation>&amp;Algemeen</translation>
    </message>
    <message>
        <source>At &amp;launch:</source>
        <extracomment>Stands before the list of what opens when the program starts.</extracomment>
        <translation>Bij &amp;opstarten:</translation>
    </message>
    <message>
        <source>What opens when the program starts</source>
        <translation>Wat er bij het opstarten van het programma wordt geopend</translation>
    </message>
    <message>
        <source>At launch</source>
        <translation>Bij opstarten</translation>
    </message>
    <message>
        <source>Finished te&amp;xt:</source>
        <extracomment>Stands before the text that timers show at their end.</extracomment>
        <translation>&amp;Eindtekst:</translation>
    </message>
    <message>
        <source>What a timer says when its countdown has ended</source>
        <translation>Wat een timer na het aftellen toont</translation>
    </message>
    <message>
        <source>Finished text</source>
        <translation>Eindtekst</translation>
    </message>
    <message>
        <source>A timer that is opened from a preset starts at once</source>
        <translation>Een timer die vanuit een preset wordt geopend, start meteen</translation>
    </message>
    <message>
        <source>Start presets when they are &amp;opened</source>
        <translation>Presets &amp;starten bij openen</translation>
    </message>
    <message>
        <source>The desktop does not tell of countdowns that have ended</source>
        <translation>Het bureaublad toont geen melding als een timer is afgelopen</translation>
    </message>
    <message>
        <source>Turn off &amp;notifications</source>
        <translation>&amp;Meldingen uitschakelen</translation>
    </message>
    <message>
        <source>Running timers do not show in the panel of the desktop</source>
        <translation>Lopende timers staan niet in het paneel van het bureaublad</translation>
    </message>
    <message>
        <source>Hide the status &amp;item</source>
        <extracomment>The item of the program in the panel of the desktop.</extracomment>
        <translation>Statuspi&amp;ctogram verbergen</translation>
    </message>
    <message>
        <source>Timers refresh their display less often and show no milliseconds.
Beeps and the end of a countdown come up to 0.2 seconds late.</source>
        <translation>Timers verversen hun display minder vaak en tonen geen milliseconden.
Pieptonen en het einde van het aftellen komen tot 0,2 seconden te laat.</translation>
    </message>
    <message>
        <source>&amp;Energy saver</source>
        <translation>E&amp;nergiebesparing</translation>
    </message>
    <message>
        <source>&amp;Sounds</source>
        <extracomment>The title of a page.</extracomment>
        <translation>&amp;Geluiden</translation>
    </message>
    <message>
        <source>No timer makes a sound</source>
        <translation>Geen enkele timer maakt geluid</translation>
    </message>
    <message>
        <source>&amp;Mute all timers</source>
        <translation>Alle timers &amp;dempen</translation>
    </message>
    <message>
        <source>The last seconds of a countdown pass in silence</source>
        <translation>De laatste seconden van het aftellen verlopen in stilte</translation>
    </message>
    <message>
        <source>Turn off countdown &amp;beeps</source>
        <translation>Aftelpieptonen &amp;uitschakelen</translation>
    </message>
    <message>
        <source>&amp;Alarm:</source>
        <translation>Ala&amp;rm:</translation>
    </message>
    <message>
        <source>Alarm sound of new timers</source>
        <translation>Alarmgeluid van nieuwe timers</translation>
    </message>
    <message>
        <source>Play the alarm sound</source>
        <translation>Alarmgeluid afspelen</translation>
    </message>
    <message>
        <source>Stop the alarm sound</source>
        <translation>Alarmgeluid stoppen</translation>
    </message>
    <message>
        <source>In use:</source>
        <extracomment>Stands before the name of a sound.</extracomment>
        <translation>In gebruik:</translation>
    </message>
    <message>
        <source>Alarm sound in use</source>
        <translation>Alarmgeluid in gebruik</translation>
    </message>
    <message>
        <source>Alarm sound that cannot be played</source>
        <translation>Alarmgeluid dat niet kan worden afgespeeld</translation>
    </message>
    <message>
        <source>&amp;Countdown:</source>
        <translation>A&amp;ftellen:</translation>
    </message>
    <message>
        <source>Countdown sound of new timers</source>
        <translation>Aftelgeluid van nieuwe timers</translation>
    </message>
    <message>
        <source>Play the countdown sound</source>
        <translation>Aftelgeluid afspelen</translation>
    </message>
    <message>
        <source>Stop the countdown sound</source>
        <translation>Aftelgeluid stoppen</translation>
    </message>
    <message>
        <source>Countdown sound in use</source>
        <translation>Aftelgeluid in gebruik</translation>
    </message>
    <message>
        <source>Countdown sound that cannot be played</source>
        <translation>Aftelgeluid dat niet kan worden afgespeeld</translation>
    </message>
    <message>
        <source>Timers opened from now on begin with these sounds. Each timer offers a choice of its own under More Options.</source>
        <translation>Timers die vanaf nu worden geopend, beginnen met deze geluiden. Elke timer heeft onder ‘Meer opties’ een eigen keuze.</translation>
    </message>
    <message>
        <source>Mute All</source>
        <translation>Alle dempen</translation>
    </message>
    <message>
        <source>Unmute All</source>
        <translation>Dempen opheffen</translation>
    </message>
    <message>
        <source>Select a sound file</source>
        <translation>Geluidsbestand kiezen</translation>
    </message>
    <message>
        <source>Unplayable:</source>
        <extracomment>Stands before the name of the file of a sound.</extracomment>
        <translation>Niet afspeelbaar:</translation>
    </message>
    <message>
        <source>Missing:</source>
        <translation>Ontbreekt:</translation>
    </message>
    <message>
        <source>Running timers do not show in the panel</source>
        <extracomment>A line below “Hide the status item”; as short as possible.</extracomment>
        <translation>Lopende timers staan niet in het paneel</translation>
    </message>
    <message>
        <source>No milliseconds; beeps and alarms up to 0.2 s late</source>
        <extracomment>A line below “Energy saver”; as short as possible.</extracomment>
        <translation>Geen milliseconden; pieptonen en alarmen komen tot 0,2 seconden te laat</translation>
    </message>
</context>
<context>
    <name>Preset</name>
    <message>
        <source>Preset %1</source>
        <extracomment>In the display of a timer opened from a preset; %1 is its number.</extracomment>
        <translation>Preset %1</translation>
    </message>
    <message>
        <source>Saved to Preset %1</source>
        <extracomment>In the display of a timer saved into a preset; %1 is its number.</extracomment>
        <translation>Opgeslagen in preset %1</translation>
    </message>
</context>
<context>
    <name>PresetsMenu</name>
    <message>
        <source>&amp;Presets</source>
        <translation>&amp;Presets</translation>
    </message>
    <message>
        <source>Save Wuffer to Preset</source>
        <translation>Timer opslaan in preset</translation>
    </message>
    <message>
        <source>Shortcut: Hold Control and press a number key</source>
        <translation>Sneltoets: houd Ctrl ingedrukt en druk op een cijfertoets</translation>
    </message>
    <message>
        <source>⌘%1 (Overwrite %2)</source>
        <extracomment>The number of a preset, and the name and time in it, which saving replaces.</extracomment>
        <translation>⌘%1 (%2 overschrijven)</translation>
    </message>
</context>
<context>
    <name>SoundEntries</name>
    <message>
        <source>Wuff (Default)</source>
        <extracomment>A sound of the program: the bark of a dog.</extracomment>
        <translation>Woef (standaard)</translation>
    </message>
    <message>
        <source>Crow (Default)</source>
        <extracomment>A sound of the program: the caw of a crow.</extracomment>
        <translation>Kraai (standaard)</translation>
    </message>
    <message>
        <source>Select another sound...</source>
        <translation>Ander geluid kiezen...</translation>
    </message>
    <message>
        <source>Clear custom sounds</source>
        <translation>Eigen geluiden wissen</translation>
    </message>
    <message>
        <source>Manage Sounds...</source>
        <translation>Geluiden beheren...</translation>
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
        <translation>Einddatum</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Ring &amp;at:</source>
        <extracomment>Stands before the date and time at which a timer rings.</extracomment>
        <translation>Ala&amp;rm op:</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum en tijd</translation>
    </message>
    <message>
        <source>How long that is from now</source>
        <translation>Tijd tot dat moment</translation>
    </message>
</context>
<context>
    <name>TargetTimeSheet</name>
    <message>
        <source>Previous month</source>
        <extracomment>Accessible name: the arrow of the calendar that turns one month back.</extracomment>
        <translation>Vorige maand</translation>
    </message>
    <message>
        <source>Next month</source>
        <extracomment>Accessible name: the arrow of the calendar that turns one month on.</extracomment>
        <translation>Volgende maand</translation>
    </message>
</context>
<context>
    <name>TimeDistance</name>
    <message>
        <source>%1 d</source>
        <extracomment>Days, hours, minutes and seconds, abbreviated, as in “in 4 h 12 min”.</extracomment>
        <translation>%1 d</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 u</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>now</source>
        <extracomment>The time that is left until a date: none.</extracomment>
        <translation>nu</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>Two units of a time, the larger first: “4 h 12 min”.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>in %1</source>
        <extracomment>The time that is left until a date: “in 4 h 12 min”.</extracomment>
        <translation>over %1</translation>
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
        <translation>%1u </translation>
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
        <translation>%1u %2m %3s</translation>
    </message>
</context>
<context>
    <name>TimeText</name>
    <message>
        <source>d day days</source>
        <extracomment>Words and letters for days that users type after a number, separated by blanks. The English ones are always understood; give those of your language. One word must not stand for two units.</extracomment>
        <translation>d dag dagen dg dgn</translation>
    </message>
    <message>
        <source>h hr hrs hour hours</source>
        <extracomment>The same for hours.</extracomment>
        <translation>u uur uren h</translation>
    </message>
    <message>
        <source>m min mins minute minutes</source>
        <extracomment>The same for minutes.</extracomment>
        <translation>m min minuut minuten</translation>
    </message>
    <message>
        <source>s sec secs second seconds</source>
        <extracomment>The same for seconds.</extracomment>
        <translation>s sec seconde seconden</translation>
    </message>
    <message>
        <source>and</source>
        <extracomment>The word between two units: “1 hour and 5 minutes”.</extracomment>
        <translation>en</translation>
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
        <translation>Resetten</translation>
    </message>
    <message>
        <source>Start Chain</source>
        <extracomment>On the button and in the menu, at the first timer of a chain: runs the chain.</extracomment>
        <translation>Keten starten</translation>
    </message>
    <message>
        <source>Chained</source>
        <extracomment>On the disabled button and in the menu: another timer starts this one.</extracomment>
        <translation>In keten</translation>
    </message>
    <message>
        <source>Stopwatch</source>
        <extracomment>A timer that counts up, and the menu item that makes a timer one.</extracomment>
        <translation>Stopwatch</translation>
    </message>
    <message>
        <source>Timer</source>
        <extracomment>The menu item that makes a stopwatch a timer that counts down.</extracomment>
        <translation>Timer</translation>
    </message>
    <message>
        <source>More Options</source>
        <extracomment>Opens the drawer with more options of a timer.</extracomment>
        <translation>Meer opties</translation>
    </message>
    <message>
        <source>Hide Options</source>
        <extracomment>Closes the drawer with more options of a timer.</extracomment>
        <translation>Minder opties</translation>
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
        <translation>Display</translation>
    </message>
    <message>
        <source>The name of this timer</source>
        <translation>De naam van deze timer</translation>
    </message>
    <message>
        <source>Name</source>
        <extracomment>Accessible name: the name of the timer.</extracomment>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Name on the full screen</source>
        <extracomment>Accessible name: the name of the timer.</extracomment>
        <translation>Naam op het volledige scherm</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>Accessible name: the time that the timer shows.</extracomment>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>Elapsed time</source>
        <translation>Verstreken tijd</translation>
    </message>
    <message>
        <source>Milliseconds</source>
        <translation>Milliseconden</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Uren</translation>
    </message>
    <message>
        <source>h&amp;ours</source>
        <extracomment>Stands after a number field, with those for minutes and seconds in one line.</extracomment>
        <translation>&amp;uren</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>&amp;minutes</source>
        <translation>&amp;minuten</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Seconden</translation>
    </message>
    <message>
        <source>&amp;seconds</source>
        <translation>&amp;seconden</translation>
    </message>
    <message>
        <source>&amp;Keep wuffing</source>
        <extracomment>A check box: the alarm goes on until the user stops it. The program&apos;s alarm is the bark of a dog, “wuff”.</extracomment>
        <translation>Blijv&amp;en blaffen</translation>
    </message>
    <message>
        <source>Fill the screen when the countdown starts; any key or click ends it</source>
        <translation>Het scherm vullen zodra het aftellen begint; met een toets of klik komt het venster terug</translation>
    </message>
    <message>
        <source>Fu&amp;ll screen</source>
        <extracomment>A check box.</extracomment>
        <translation>V&amp;olledig scherm</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>Accessible name: the drawer with more options of a timer.</extracomment>
        <translation>Opties</translation>
    </message>
    <message>
        <source>When fi&amp;nished:</source>
        <extracomment>Stands before the list of finish actions.</extracomment>
        <translation>&amp;Na afloop:</translation>
    </message>
    <message>
        <source>What happens when the countdown has ended and its alarm is over</source>
        <translation>Wat er gebeurt als het aftellen en het alarm voorbij zijn</translation>
    </message>
    <message>
        <source>When finished</source>
        <translation>Na afloop</translation>
    </message>
    <message>
        <source>What can happen when the countdown ends</source>
        <translation>Wat er na het aftellen kan gebeuren</translation>
    </message>
    <message>
        <source>Help on finish actions</source>
        <translation>Help over acties na afloop</translation>
    </message>
    <message>
        <source>What the finish action starts</source>
        <extracomment>Accessible name of the list of presets, or of the linked timer.</extracomment>
        <translation>Wat de actie na afloop start</translation>
    </message>
    <message>
        <source>Choose from the open timers</source>
        <translation>Uit de open timers kiezen</translation>
    </message>
    <message>
        <source>Choose the timer to start</source>
        <translation>De te starten timer kiezen</translation>
    </message>
    <message>
        <source>&amp;Alarm:</source>
        <extracomment>Stands before the list of sounds.</extracomment>
        <translation>&amp;Alarm:</translation>
    </message>
    <message>
        <source>Alarm sound</source>
        <translation>Alarmgeluid</translation>
    </message>
    <message>
        <source>Play the alarm sound</source>
        <translation>Alarmgeluid afspelen</translation>
    </message>
    <message>
        <source>Stop the alarm sound</source>
        <translation>Alarmgeluid stoppen</translation>
    </message>
    <message>
        <source>&amp;Countdown:</source>
        <extracomment>Stands before the list of sounds for the last seconds of a countdown.</extracomment>
        <translation>A&amp;ftellen:</translation>
    </message>
    <message>
        <source>Countdown sound</source>
        <translation>Aftelgeluid</translation>
    </message>
    <message>
        <source>Play the countdown sound</source>
        <translation>Aftelgeluid afspelen</translation>
    </message>
    <message>
        <source>Stop the countdown sound</source>
        <translation>Aftelgeluid stoppen</translation>
    </message>
    <message>
        <source>Elapsed: %1</source>
        <extracomment>The time since the start of a timer.</extracomment>
        <translation>Verstreken: %1</translation>
    </message>
    <message>
        <source>Ready when you are</source>
        <translation>Klaar voor de start</translation>
    </message>
    <message>
        <source>The preset that this timer turns into and runs when it has finished</source>
        <translation>De preset die na afloop in deze timer wordt geladen en gestart</translation>
    </message>
    <message>
        <source>Control-Drag a Wuffer</source>
        <extracomment>In place of the name of the timer to start: how to choose one.</extracomment>
        <translation>Timer slepen met Ctrl</translation>
    </message>
    <message>
        <source>When finished, this timer starts “%1”</source>
        <translation>Na afloop start deze timer ‘%1’</translation>
    </message>
    <message>
        <source>Hold Control and drag the window of another timer onto this one: it starts when this one has finished</source>
        <translation>Houd Ctrl ingedrukt en sleep het venster van een andere timer op dit venster: die timer start zodra deze is afgelopen</translation>
    </message>
    <message>
        <source>Sound is off</source>
        <translation>Geluid staat uit</translation>
    </message>
    <message>
        <source>Sound is on</source>
        <translation>Geluid staat aan</translation>
    </message>
    <message>
        <source>Let all timers be heard again</source>
        <translation>Het geluid van alle timers weer aanzetten</translation>
    </message>
    <message>
        <source>Mute all timers</source>
        <translation>Alle timers dempen</translation>
    </message>
    <message>
        <source>A timer fills the screen</source>
        <translation>Een timer vult het scherm</translation>
    </message>
</context>
<context>
    <name>WufferController</name>
    <message>
        <source>Preferences</source>
        <translation>Voorkeuren</translation>
    </message>
    <message>
        <source>Converter</source>
        <translation>Omrekenaar</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>Keukenmaten</translation>
    </message>
    <message>
        <source>Wuffer Help</source>
        <translation>Wuffer-help</translation>
    </message>
</context>
</TS>

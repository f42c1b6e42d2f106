<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>About Wuffer</source>
        <translation>Informazioni su Wuffer</translation>
    </message>
    <message>
        <source>Countdown timers for the desktop</source>
        <translation>Timer con conto alla rovescia per il desktop</translation>
    </message>
    <message>
        <source>Copyright © 2026 The Wuffer developers
Free software under the MIT License: use it, change it
and pass it on. It comes without any warranty.</source>
        <translation>Copyright © 2026 The Wuffer developers
Software libero con licenza MIT: usalo, modificalo
e condividilo. È fornito senza alcuna garanzia.</translation>
    </message>
    <message>
        <source>Libraries and their licenses</source>
        <translation>Librerie e relative licenze</translation>
    </message>
</context>
<context>
    <name>AboutDialog</name>
    <message>
        <source>sound output</source>
        <extracomment>What a library is used for.</extracomment>
        <translation>uscita audio</translation>
    </message>
    <message>
        <source>sound files</source>
        <translation>file audio</translation>
    </message>
    <message>
        <source>MP3 files</source>
        <translation>file MP3</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versione %1</translation>
    </message>
    <message>
        <source>windows</source>
        <extracomment>What a library is used for.</extracomment>
        <translation>finestre</translation>
    </message>
    <message>
        <source>X Window System</source>
        <translation>X Window System</translation>
    </message>
    <message>
        <source>windows, session bus</source>
        <extracomment>What a library is used for.</extracomment>
        <translation>finestre, bus di sessione</translation>
    </message>
</context>
<context>
    <name>AlarmAnnouncement</name>
    <message>
        <source>Alarm ended</source>
        <extracomment>Screen readers say it after the name of a timer.</extracomment>
        <translation>Allarme terminato</translation>
    </message>
</context>
<context>
    <name>Chain</name>
    <message>
        <source>Wuffer Chain - %1 of %2</source>
        <extracomment>The place of a timer in a chain: position and number of timers.</extracomment>
        <translation>Catena di timer - %1 di %2</translation>
    </message>
    <message>
        <source>Started by “%1”</source>
        <extracomment>Names of timers.</extracomment>
        <translation>Avviato da «%1»</translation>
    </message>
    <message>
        <source>Starts “%1”</source>
        <translation>Avvia «%1»</translation>
    </message>
    <message>
        <source>Started by “%1”; starts “%2”</source>
        <translation>Avviato da «%1»; avvia «%2»</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Countdown timers for the desktop. If the program is already running, it carries out what is asked for here.</source>
        <translation>Timer con conto alla rovescia per il desktop. Se il programma è già in esecuzione, è quello a compiere le azioni richieste qui.</translation>
    </message>
    <message>
        <source>Wait for the session bus to say what to open.</source>
        <translation>Attende che il bus di sessione indichi che cosa aprire.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Mostra questa guida.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Mostra la versione.</translation>
    </message>
    <message>
        <source>Unexpected argument “%1”.</source>
        <translation>Argomento superfluo: «%1».</translation>
    </message>
    <message>
        <source>Open a new timer.</source>
        <translation>Apre un nuovo timer.</translation>
    </message>
    <message>
        <source>Start every timer.</source>
        <translation>Avvia tutti i timer.</translation>
    </message>
    <message>
        <source>Show the preferences.</source>
        <translation>Mostra le preferenze.</translation>
    </message>
    <message>
        <source>Show the unit converter.</source>
        <translation>Mostra il convertitore di unità.</translation>
    </message>
</context>
<context>
    <name>Converter</name>
    <message>
        <source>Volume (US measures)</source>
        <translation>Volume (misure USA)</translation>
    </message>
    <message>
        <source>&amp;Milliliters:</source>
        <translation>&amp;Millilitri:</translation>
    </message>
    <message>
        <source>Milliliters</source>
        <translation>Millilitri</translation>
    </message>
    <message>
        <source>F&amp;luid ounces:</source>
        <translation>Once fl&amp;uide:</translation>
    </message>
    <message>
        <source>Fluid ounces</source>
        <translation>Once fluide</translation>
    </message>
    <message>
        <source>&amp;Cups:</source>
        <translation>Ta&amp;zze:</translation>
    </message>
    <message>
        <source>Cups</source>
        <translation>Tazze</translation>
    </message>
    <message>
        <source>Ta&amp;blespoons:</source>
        <translation>&amp;Cucchiai:</translation>
    </message>
    <message>
        <source>Tablespoons</source>
        <translation>Cucchiai</translation>
    </message>
    <message>
        <source>T&amp;easpoons:</source>
        <translation>Cucc&amp;hiaini:</translation>
    </message>
    <message>
        <source>Teaspoons</source>
        <translation>Cucchiaini</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Peso</translation>
    </message>
    <message>
        <source>&amp;Grams:</source>
        <translation>&amp;Grammi:</translation>
    </message>
    <message>
        <source>Grams</source>
        <translation>Grammi</translation>
    </message>
    <message>
        <source>&amp;Ounces:</source>
        <translation>&amp;Once:</translation>
    </message>
    <message>
        <source>Ounces</source>
        <translation>Once</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Cel&amp;sius:</source>
        <translation>C&amp;elsius:</translation>
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
        <translation>Non fare nulla</translation>
    </message>
    <message>
        <source>Loop this Wuffer</source>
        <translation>Ripeti questo timer</translation>
    </message>
    <message>
        <source>Start a Preset</source>
        <translation>Avvia un preset</translation>
    </message>
    <message>
        <source>Start other open Wuffer</source>
        <translation>Avvia un altro timer aperto</translation>
    </message>
</context>
<context>
    <name>FreedesktopNotifications</name>
    <message>
        <source>Show</source>
        <extracomment>A button of a notification: brings the timer to the front.</extracomment>
        <translation>Mostra</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>A button of a notification: ends the alarm.</extracomment>
        <translation>Ferma</translation>
    </message>
</context>
<context>
    <name>GatheredNotifications</name>
    <message numerus="yes">
        <source>%n timers have ended</source>
        <translation>
            <numerusform>È terminato %n timer</numerusform>
            <numerusform>Sono terminati %n timer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>e %n altro</numerusform>
            <numerusform>e altri %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Back</source>
        <extracomment>Goes to the page of the help that was shown before.</extracomment>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Forward</source>
        <extracomment>Goes to the page of the help that was shown after this one.</extracomment>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>Search the help</source>
        <translation>Cerca nella guida</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Pages</source>
        <extracomment>Accessible name of the list of pages.</extracomment>
        <translation>Pagine</translation>
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
        <translation>Questa guida è disponibile solo in inglese.</translation>
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
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>Found: %1</source>
        <translation>Risultati: %1</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nessun risultato</translation>
    </message>
</context>
<context>
    <name>Home</name>
    <message>
        <source>New Timer</source>
        <translation>Nuovo timer</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Preset</translation>
    </message>
</context>
<context>
    <name>KeepOnTopItem</name>
    <message>
        <source>Keep on &amp;Top</source>
        <translation>Sempre in primo &amp;piano</translation>
    </message>
</context>
<context>
    <name>KeepWuffing</name>
    <message>
        <source>A stopwatch has no alarm that could go on</source>
        <translation>Un cronometro non ha un allarme da ripetere</translation>
    </message>
    <message>
        <source>Only a timer that is to “%1” when finished can go on wuffing</source>
        <extracomment>%1 is the finish action “Do Nothing”.</extracomment>
        <translation>Può abbaiare a oltranza solo un timer con azione finale «%1»</translation>
    </message>
    <message>
        <source>The sound of all timers is off</source>
        <translation>L’audio di tutti i timer è disattivato</translation>
    </message>
    <message>
        <source>Repeat the alarm sound until you press %1</source>
        <extracomment>%1 is the title of the button “Reset”.</extracomment>
        <translation>Ripete il suono dell’allarme finché non si preme «%1»</translation>
    </message>
</context>
<context>
    <name>LaunchChoices</name>
    <message>
        <source>Open a Wuffer</source>
        <translation>Apri un timer</translation>
    </message>
    <message>
        <source>Do Nothing</source>
        <translation>Non fare nulla</translation>
    </message>
    <message>
        <source>Open Preset ⌘1</source>
        <translation>Apri preset ⌘1</translation>
    </message>
    <message>
        <source>Open and Start Preset ⌘1</source>
        <translation>Apri e avvia preset ⌘1</translation>
    </message>
</context>
<context>
    <name>LinkMenu</name>
    <message>
        <source>When F&amp;inished, Start</source>
        <translation>Alla &amp;fine avvia</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Nessuno</translation>
    </message>
    <message>
        <source>No &amp;Other Timer Is Open</source>
        <translation>Nessun &amp;altro timer aperto</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;New Timer</source>
        <translation>&amp;Nuovo timer</translation>
    </message>
    <message>
        <source>Start &amp;All</source>
        <translation>Avvia &amp;tutti</translation>
    </message>
    <message>
        <source>Mute All</source>
        <translation>Silenzia tutti</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Preferenze…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>&amp;Timer</source>
        <translation>&amp;Timer</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Avvia</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Rinomina</translation>
    </message>
    <message>
        <source>Stopwatch</source>
        <translation>Cronometro</translation>
    </message>
    <message>
        <source>Count Down to a &amp;Date…</source>
        <translation>Conto alla rovescia fino a una &amp;data…</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>A&amp;zzera</translation>
    </message>
    <message>
        <source>&amp;Keep Wuffing</source>
        <translation>A&amp;bbaia a oltranza</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>&amp;Schermo intero</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Altre opzioni</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>Fi&amp;nestra</translation>
    </message>
    <message>
        <source>&amp;Minimize</source>
        <translation>&amp;Minimizza</translation>
    </message>
    <message>
        <source>&amp;Converter</source>
        <translation>&amp;Convertitore</translation>
    </message>
    <message>
        <source>M&amp;easurements</source>
        <translation>Mi&amp;sure</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message>
        <source>Wuffer &amp;Help</source>
        <translation>&amp;Guida di Wuffer</translation>
    </message>
    <message>
        <source>Wuffer on the &amp;Web</source>
        <translation>Wuffer sul &amp;web</translation>
    </message>
    <message>
        <source>&amp;About Wuffer</source>
        <translation>&amp;Informazioni su Wuffer</translation>
    </message>
</context>
<context>
    <name>MeasurementsPanel</name>
    <message>
        <source>Kitchen measurements</source>
        <translation>Misure da cucina</translation>
    </message>
    <message>
        <source>1 teaspoon|1 tsp|⅓ tbsp|⅙ fl oz|4.93 mL</source>
        <translation>1 cucchiaino|1 cucchiaino|⅓ cucchiaio|⅙ fl oz|4.93 ml</translation>
    </message>
    <message>
        <source>1 tablespoon|3 tsp|1 tbsp|½ fl oz|14.79 mL</source>
        <translation>1 cucchiaio|3 cucchiaini|1 cucchiaio|½ fl oz|14.79 ml</translation>
    </message>
    <message>
        <source>1 fluid ounce|6 tsp|2 tbsp|1 fl oz|29.57 mL</source>
        <translation>1 oncia fluida|6 cucchiaini|2 cucchiai|1 fl oz|29.57 ml</translation>
    </message>
    <message>
        <source>¼ cup|12 tsp|4 tbsp|2 fl oz|59.15 mL</source>
        <translation>¼ tazza|12 cucchiaini|4 cucchiai|2 fl oz|59.15 ml</translation>
    </message>
    <message>
        <source>⅓ cup|16 tsp|5⅓ tbsp|2⅔ fl oz|78.86 mL</source>
        <translation>⅓ tazza|16 cucchiaini|5⅓ cucchiai|2⅔ fl oz|78.86 ml</translation>
    </message>
    <message>
        <source>½ cup|24 tsp|8 tbsp|4 fl oz|118.29 mL</source>
        <translation>½ tazza|24 cucchiaini|8 cucchiai|4 fl oz|118.29 ml</translation>
    </message>
    <message>
        <source>⅔ cup|32 tsp|10⅔ tbsp|5⅓ fl oz|157.73 mL</source>
        <translation>⅔ tazza|32 cucchiaini|10⅔ cucchiai|5⅓ fl oz|157.73 ml</translation>
    </message>
    <message>
        <source>¾ cup|36 tsp|12 tbsp|6 fl oz|177.44 mL</source>
        <translation>¾ tazza|36 cucchiaini|12 cucchiai|6 fl oz|177.44 ml</translation>
    </message>
    <message>
        <source>1 cup|48 tsp|16 tbsp|8 fl oz|236.59 mL</source>
        <translation>1 tazza|48 cucchiaini|16 cucchiai|8 fl oz|236.59 ml</translation>
    </message>
    <message>
        <source>1 pint|96 tsp|32 tbsp|16 fl oz|473.18 mL</source>
        <translation>1 pinta|96 cucchiaini|32 cucchiai|16 fl oz|473.18 ml</translation>
    </message>
    <message>
        <source>1 quart|192 tsp|64 tbsp|32 fl oz|946.35 mL</source>
        <translation>1 quart|192 cucchiaini|64 cucchiai|32 fl oz|946.35 ml</translation>
    </message>
    <message>
        <source>1 gallon|768 tsp|256 tbsp|128 fl oz|3785.41 mL</source>
        <translation>1 gallone|768 cucchiaini|256 cucchiai|128 fl oz|3785.41 ml</translation>
    </message>
    <message>
        <source>1 metric teaspoon|0.17 fl oz|5 mL</source>
        <translation>1 cucchiaino metrico|0.17 fl oz|5 ml</translation>
    </message>
    <message>
        <source>1 metric tablespoon|0.51 fl oz|15 mL</source>
        <translation>1 cucchiaio metrico|0.51 fl oz|15 ml</translation>
    </message>
    <message>
        <source>1 Australian tablespoon|0.68 fl oz|20 mL</source>
        <translation>1 cucchiaio australiano|0.68 fl oz|20 ml</translation>
    </message>
    <message>
        <source>1 Japanese cup|6.76 fl oz|200 mL</source>
        <translation>1 tazza giapponese|6.76 fl oz|200 ml</translation>
    </message>
    <message>
        <source>1 metric cup|8.45 fl oz|250 mL</source>
        <translation>1 tazza metrica|8.45 fl oz|250 ml</translation>
    </message>
    <message>
        <source>1 liter|33.81 fl oz|1000 mL</source>
        <translation>1 litro|33.81 fl oz|1000 ml</translation>
    </message>
    <message>
        <source>1 UK fluid ounce|0.96 fl oz|28.41 mL</source>
        <translation>1 oncia fluida britannica|0.96 fl oz|28.41 ml</translation>
    </message>
    <message>
        <source>1 UK pint|19.22 fl oz|568.26 mL</source>
        <translation>1 pinta britannica|19.22 fl oz|568.26 ml</translation>
    </message>
    <message>
        <source>1 UK quart|38.43 fl oz|1136.52 mL</source>
        <translation>1 quart britannico|38.43 fl oz|1136.52 ml</translation>
    </message>
    <message>
        <source>1 UK gallon|153.72 fl oz|4546.09 mL</source>
        <translation>1 gallone britannico|153.72 fl oz|4546.09 ml</translation>
    </message>
    <message>
        <source>1 ounce|1 oz|0.0625 lb|28.35 g</source>
        <translation>1 oncia|1 oz|0.0625 lb|28.35 g</translation>
    </message>
    <message>
        <source>2 ounces|2 oz|0.125 lb|56.70 g</source>
        <translation>2 once|2 oz|0.125 lb|56.70 g</translation>
    </message>
    <message>
        <source>¼ pound|4 oz|0.25 lb|113.40 g</source>
        <translation>¼ libbra|4 oz|0.25 lb|113.40 g</translation>
    </message>
    <message>
        <source>½ pound|8 oz|0.5 lb|226.80 g</source>
        <translation>½ libbra|8 oz|0.5 lb|226.80 g</translation>
    </message>
    <message>
        <source>¾ pound|12 oz|0.75 lb|340.19 g</source>
        <translation>¾ libbra|12 oz|0.75 lb|340.19 g</translation>
    </message>
    <message>
        <source>1 pound|16 oz|1 lb|453.59 g</source>
        <translation>1 libbra|16 oz|1 lb|453.59 g</translation>
    </message>
    <message>
        <source>2 pounds|32 oz|2 lb|907.18 g</source>
        <translation>2 libbre|32 oz|2 lb|907.18 g</translation>
    </message>
    <message>
        <source>50 grams|1.76 oz|0.110 lb|50 g</source>
        <translation>50 grammi|1.76 oz|0.110 lb|50 g</translation>
    </message>
    <message>
        <source>100 grams|3.53 oz|0.220 lb|100 g</source>
        <translation>100 grammi|3.53 oz|0.220 lb|100 g</translation>
    </message>
    <message>
        <source>250 grams|8.82 oz|0.551 lb|250 g</source>
        <translation>250 grammi|8.82 oz|0.551 lb|250 g</translation>
    </message>
    <message>
        <source>500 grams|17.64 oz|1.102 lb|500 g</source>
        <translation>500 grammi|17.64 oz|1.102 lb|500 g</translation>
    </message>
    <message>
        <source>1 kilogram|35.27 oz|2.205 lb|1000 g</source>
        <translation>1 chilogrammo|35.27 oz|2.205 lb|1000 g</translation>
    </message>
    <message>
        <source>⅛ stick|1 tbsp|1⁄16 cup|½ oz|14.17 g</source>
        <translation>⅛ panetto|1 cucchiaio|1⁄16 tazza|½ oz|14.17 g</translation>
    </message>
    <message>
        <source>¼ stick|2 tbsp|⅛ cup|1 oz|28.35 g</source>
        <translation>¼ panetto|2 cucchiai|⅛ tazza|1 oz|28.35 g</translation>
    </message>
    <message>
        <source>½ stick|4 tbsp|¼ cup|2 oz|56.70 g</source>
        <translation>½ panetto|4 cucchiai|¼ tazza|2 oz|56.70 g</translation>
    </message>
    <message>
        <source>1 stick|8 tbsp|½ cup|4 oz|113.40 g</source>
        <translation>1 panetto|8 cucchiai|½ tazza|4 oz|113.40 g</translation>
    </message>
    <message>
        <source>2 sticks|16 tbsp|1 cup|8 oz|226.80 g</source>
        <translation>2 panetti|16 cucchiai|1 tazza|8 oz|226.80 g</translation>
    </message>
    <message>
        <source>4 sticks|32 tbsp|2 cups|16 oz|453.59 g</source>
        <translation>4 panetti|32 cucchiai|2 tazze|16 oz|453.59 g</translation>
    </message>
    <message>
        <source>Very cool|Gas ¼|225 °F|107 °C|110 °C</source>
        <translation>Tiepido|Gas ¼|225 °F|107 °C|110 °C</translation>
    </message>
    <message>
        <source>Very cool|Gas ½|250 °F|121 °C|120 °C</source>
        <translation>Tiepido|Gas ½|250 °F|121 °C|120 °C</translation>
    </message>
    <message>
        <source>Cool|Gas 1|275 °F|135 °C|140 °C</source>
        <translation>Dolce|Gas 1|275 °F|135 °C|140 °C</translation>
    </message>
    <message>
        <source>Cool|Gas 2|300 °F|149 °C|150 °C</source>
        <translation>Dolce|Gas 2|300 °F|149 °C|150 °C</translation>
    </message>
    <message>
        <source>Warm|Gas 3|325 °F|163 °C|160 °C</source>
        <translation>Moderato|Gas 3|325 °F|163 °C|160 °C</translation>
    </message>
    <message>
        <source>Moderate|Gas 4|350 °F|177 °C|180 °C</source>
        <translation>Medio|Gas 4|350 °F|177 °C|180 °C</translation>
    </message>
    <message>
        <source>Fairly hot|Gas 5|375 °F|191 °C|190 °C</source>
        <translation>Abbastanza caldo|Gas 5|375 °F|191 °C|190 °C</translation>
    </message>
    <message>
        <source>Fairly hot|Gas 6|400 °F|204 °C|200 °C</source>
        <translation>Abbastanza caldo|Gas 6|400 °F|204 °C|200 °C</translation>
    </message>
    <message>
        <source>Hot|Gas 7|425 °F|218 °C|220 °C</source>
        <translation>Caldo|Gas 7|425 °F|218 °C|220 °C</translation>
    </message>
    <message>
        <source>Very hot|Gas 8|450 °F|232 °C|230 °C</source>
        <translation>Molto caldo|Gas 8|450 °F|232 °C|230 °C</translation>
    </message>
    <message>
        <source>Very hot|Gas 9|475 °F|246 °C|250 °C</source>
        <translation>Molto caldo|Gas 9|475 °F|246 °C|250 °C</translation>
    </message>
    <message>
        <source>Teaspoons to milliliters|× 4.929</source>
        <translation>Da cucchiaini a millilitri|× 4.929</translation>
    </message>
    <message>
        <source>Tablespoons to milliliters|× 14.79</source>
        <translation>Da cucchiai a millilitri|× 14.79</translation>
    </message>
    <message>
        <source>Fluid ounces to milliliters|× 29.57</source>
        <translation>Da once fluide a millilitri|× 29.57</translation>
    </message>
    <message>
        <source>Cups to milliliters|× 236.6</source>
        <translation>Da tazze a millilitri|× 236.6</translation>
    </message>
    <message>
        <source>Milliliters to fluid ounces|× 0.03381</source>
        <translation>Da millilitri a once fluide|× 0.03381</translation>
    </message>
    <message>
        <source>Quarts to liters|× 0.9464</source>
        <translation>Da quart a litri|× 0.9464</translation>
    </message>
    <message>
        <source>Liters to quarts|× 1.057</source>
        <translation>Da litri a quart|× 1.057</translation>
    </message>
    <message>
        <source>Ounces to grams|× 28.35</source>
        <translation>Da once a grammi|× 28.35</translation>
    </message>
    <message>
        <source>Grams to ounces|× 0.03527</source>
        <translation>Da grammi a once|× 0.03527</translation>
    </message>
    <message>
        <source>Pounds to kilograms|× 0.4536</source>
        <translation>Da libbre a chilogrammi|× 0.4536</translation>
    </message>
    <message>
        <source>Kilograms to pounds|× 2.205</source>
        <translation>Da chilogrammi a libbre|× 2.205</translation>
    </message>
    <message>
        <source>Inches to centimeters|× 2.54</source>
        <translation>Da pollici a centimetri|× 2.54</translation>
    </message>
    <message>
        <source>Centimeters to inches|× 0.3937</source>
        <translation>Da centimetri a pollici|× 0.3937</translation>
    </message>
    <message>
        <source>Celsius to Fahrenheit|× 1.8, then + 32</source>
        <translation>Da Celsius a Fahrenheit|× 1.8, poi + 32</translation>
    </message>
    <message>
        <source>Fahrenheit to Celsius|− 32, then ÷ 1.8</source>
        <translation>Da Fahrenheit a Celsius|− 32, poi ÷ 1.8</translation>
    </message>
    <message>
        <source>Volume, US measures</source>
        <translation>Volume, misure USA</translation>
    </message>
    <message>
        <source>Measure|Teaspoons|Tablespoons|Fluid ounces|Milliliters</source>
        <translation>Misura|Cucchiaini|Cucchiai|Once fluide|Millilitri</translation>
    </message>
    <message>
        <source>Volume, other measures</source>
        <translation>Volume, altre misure</translation>
    </message>
    <message>
        <source>Measure|US fluid ounces|Milliliters</source>
        <translation>Misura|Once fluide USA|Millilitri</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Peso</translation>
    </message>
    <message>
        <source>Weight|Ounces|Pounds|Grams</source>
        <translation>Peso|Once|Libbre|Grammi</translation>
    </message>
    <message>
        <source>Butter, US sticks</source>
        <translation>Burro, panetti USA</translation>
    </message>
    <message>
        <source>Butter|Tablespoons|Cups|Ounces|Grams</source>
        <translation>Burro|Cucchiai|Tazze|Once|Grammi</translation>
    </message>
    <message>
        <source>Oven temperatures</source>
        <translation>Temperature del forno</translation>
    </message>
    <message>
        <source>Heat|Gas mark|Fahrenheit|Celsius|On the dial</source>
        <translation>Forno|Livello gas|Fahrenheit|Celsius|Sulla manopola</translation>
    </message>
    <message>
        <source>Common conversions</source>
        <translation>Conversioni comuni</translation>
    </message>
    <message>
        <source>Conversion|Calculation</source>
        <translation>Conversione|Calcolo</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Preferences</source>
        <translation>Preferenze</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <extracomment>The title of a page.</extracomment>
        <translation>&amp;Generale</translation>
    </message>
    <message>
        <source>At &amp;launch:</source>
        <extracomment>Stands before the list of what opens when the program starts.</extracomment>
        <translation>A&amp;ll’avvio:</translation>
    </message>
    <message>
        <source>What opens when the program starts</source>
        <translation>Che cosa si apre all’avvio del programma</translation>
    </message>
    <message>
        <source>At launch</source>
        <translation>All’avvio</translation>
    </message>
    <message>
        <source>Finished te&amp;xt:</source>
        <extracomment>Stands before the text that timers show at their end.</extracomment>
        <translation>T&amp;esto finale:</translation>
    </message>
    <message>
        <source>What a timer says when its countdown has ended</source>
        <translation>Che cosa mostra un timer alla fine del conto alla rovescia</translation>
    </message>
    <message>
        <source>Finished text</source>
        <translation>Testo finale</translation>
    </message>
    <message>
        <source>A timer that is opened from a preset starts at once</source>
        <translation>I timer aperti da un preset partono subito</translation>
    </message>
    <message>
        <source>Start presets when they are &amp;opened</source>
        <translation>A&amp;vvia i preset all’apertura</translation>
    </message>
    <message>
        <source>The desktop does not tell of countdowns that have ended</source>
        <translation>Il desktop non segnala la fine dei conti alla rovescia</translation>
    </message>
    <message>
        <source>Turn off &amp;notifications</source>
        <translation>&amp;Disattiva le notifiche</translation>
    </message>
    <message>
        <source>Running timers do not show in the panel of the desktop</source>
        <translation>I timer in corso non compaiono nel pannello del desktop</translation>
    </message>
    <message>
        <source>Hide the status &amp;item</source>
        <extracomment>The item of the program in the panel of the desktop.</extracomment>
        <translation>Nas&amp;condi l’indicatore di stato</translation>
    </message>
    <message>
        <source>Timers refresh their display less often and show no milliseconds.
Beeps and the end of a countdown come up to 0.2 seconds late.</source>
        <translation>I timer aggiornano il display meno spesso e non mostrano i millisecondi.
I bip e la fine del conto alla rovescia ritardano al massimo di 0,2 secondi.</translation>
    </message>
    <message>
        <source>&amp;Energy saver</source>
        <translation>&amp;Risparmio energetico</translation>
    </message>
    <message>
        <source>&amp;Sounds</source>
        <extracomment>The title of a page.</extracomment>
        <translation>&amp;Suoni</translation>
    </message>
    <message>
        <source>No timer makes a sound</source>
        <translation>Nessun timer emette suoni</translation>
    </message>
    <message>
        <source>&amp;Mute all timers</source>
        <translation>Silen&amp;zia tutti i timer</translation>
    </message>
    <message>
        <source>The last seconds of a countdown pass in silence</source>
        <translation>Gli ultimi secondi del conto alla rovescia passano in silenzio</translation>
    </message>
    <message>
        <source>Turn off countdown &amp;beeps</source>
        <translation>Disattiva i &amp;bip degli ultimi secondi</translation>
    </message>
    <message>
        <source>&amp;Alarm:</source>
        <translation>A&amp;llarme:</translation>
    </message>
    <message>
        <source>Alarm sound of new timers</source>
        <translation>Suono dell’allarme dei nuovi timer</translation>
    </message>
    <message>
        <source>Play the alarm sound</source>
        <translation>Riproduci il suono dell’allarme</translation>
    </message>
    <message>
        <source>Stop the alarm sound</source>
        <translation>Ferma il suono dell’allarme</translation>
    </message>
    <message>
        <source>In use:</source>
        <extracomment>Stands before the name of a sound.</extracomment>
        <translation>In uso:</translation>
    </message>
    <message>
        <source>Alarm sound in use</source>
        <translation>Suono dell’allarme in uso</translation>
    </message>
    <message>
        <source>Alarm sound that cannot be played</source>
        <translation>Suono dell’allarme non riproducibile</translation>
    </message>
    <message>
        <source>&amp;Countdown:</source>
        <translation>&amp;Ultimi secondi:</translation>
    </message>
    <message>
        <source>Countdown sound of new timers</source>
        <translation>Suono degli ultimi secondi dei nuovi timer</translation>
    </message>
    <message>
        <source>Play the countdown sound</source>
        <translation>Riproduci il suono degli ultimi secondi</translation>
    </message>
    <message>
        <source>Stop the countdown sound</source>
        <translation>Ferma il suono degli ultimi secondi</translation>
    </message>
    <message>
        <source>Countdown sound in use</source>
        <translation>Suono degli ultimi secondi in uso</translation>
    </message>
    <message>
        <source>Countdown sound that cannot be played</source>
        <translation>Suono degli ultimi secondi non riproducibile</translation>
    </message>
    <message>
        <source>Timers opened from now on begin with these sounds. Each timer offers a choice of its own under More Options.</source>
        <translation>I timer aperti d’ora in poi usano questi suoni. Per ogni timer se ne possono scegliere altri in «Altre opzioni».</translation>
    </message>
    <message>
        <source>Mute All</source>
        <translation>Silenzia tutti</translation>
    </message>
    <message>
        <source>Unmute All</source>
        <translation>Riattiva l’audio</translation>
    </message>
    <message>
        <source>Select a sound file</source>
        <translation>Seleziona un file audio</translation>
    </message>
    <message>
        <source>Unplayable:</source>
        <extracomment>Stands before the name of the file of a sound.</extracomment>
        <translation>Non riproducibile:</translation>
    </message>
    <message>
        <source>Missing:</source>
        <translation>Mancante:</translation>
    </message>
    <message>
        <source>Running timers do not show in the panel</source>
        <extracomment>A line below “Hide the status item”; as short as possible.</extracomment>
        <translation>I timer in corso non compaiono nel pannello</translation>
    </message>
    <message>
        <source>No milliseconds; beeps and alarms up to 0.2 s late</source>
        <extracomment>A line below “Energy saver”; as short as possible.</extracomment>
        <translation>Niente millisecondi; bip e allarmi ritardano al massimo di 0,2 secondi</translation>
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
        <translation>Salvato nel preset %1</translation>
    </message>
</context>
<context>
    <name>PresetsMenu</name>
    <message>
        <source>&amp;Presets</source>
        <translation>&amp;Preset</translation>
    </message>
    <message>
        <source>Save Wuffer to Preset</source>
        <translation>Salva timer in un preset</translation>
    </message>
    <message>
        <source>Shortcut: Hold Control and press a number key</source>
        <translation>Scorciatoia: tieni premuto Ctrl e premi un tasto numerico</translation>
    </message>
    <message>
        <source>⌘%1 (Overwrite %2)</source>
        <extracomment>The number of a preset, and the name and time in it, which saving replaces.</extracomment>
        <translation>⌘%1 (sovrascrivi %2)</translation>
    </message>
</context>
<context>
    <name>SoundEntries</name>
    <message>
        <source>Wuff (Default)</source>
        <extracomment>A sound of the program: the bark of a dog.</extracomment>
        <translation>Wuff (predefinito)</translation>
    </message>
    <message>
        <source>Crow (Default)</source>
        <extracomment>A sound of the program: the caw of a crow.</extracomment>
        <translation>Corvo (predefinito)</translation>
    </message>
    <message>
        <source>Select another sound...</source>
        <translation>Seleziona un altro suono...</translation>
    </message>
    <message>
        <source>Clear custom sounds</source>
        <translation>Rimuovi suoni personalizzati</translation>
    </message>
    <message>
        <source>Manage Sounds...</source>
        <translation>Gestisci suoni...</translation>
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
        <translation>Data di fine</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>Ring &amp;at:</source>
        <extracomment>Stands before the date and time at which a timer rings.</extracomment>
        <translation>&amp;Suona il:</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Data e ora</translation>
    </message>
    <message>
        <source>How long that is from now</source>
        <translation>Quanto manca a quella data</translation>
    </message>
</context>
<context>
    <name>TargetTimeSheet</name>
    <message>
        <source>Previous month</source>
        <extracomment>Accessible name: the arrow of the calendar that turns one month back.</extracomment>
        <translation>Mese precedente</translation>
    </message>
    <message>
        <source>Next month</source>
        <extracomment>Accessible name: the arrow of the calendar that turns one month on.</extracomment>
        <translation>Mese successivo</translation>
    </message>
</context>
<context>
    <name>TimeDistance</name>
    <message>
        <source>%1 d</source>
        <extracomment>Days, hours, minutes and seconds, abbreviated, as in “in 4 h 12 min”.</extracomment>
        <translation>%1 g</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
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
        <translation>adesso</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>Two units of a time, the larger first: “4 h 12 min”.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>in %1</source>
        <extracomment>The time that is left until a date: “in 4 h 12 min”.</extracomment>
        <translation>tra %1</translation>
    </message>
</context>
<context>
    <name>TimeFormat</name>
    <message>
        <source>%1d </source>
        <extracomment>The parts of a running time, such as “1h 5m 3s”: days, hours, minutes and seconds. They stand side by side, so all but the seconds end with a blank. The display has room for ten characters at its largest size.</extracomment>
        <translation>%1g </translation>
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
        <translation>g gg giorno giorni</translation>
    </message>
    <message>
        <source>h hr hrs hour hours</source>
        <extracomment>The same for hours.</extracomment>
        <translation>h ora ore</translation>
    </message>
    <message>
        <source>m min mins minute minutes</source>
        <extracomment>The same for minutes.</extracomment>
        <translation>m min minuto minuti</translation>
    </message>
    <message>
        <source>s sec secs second seconds</source>
        <extracomment>The same for seconds.</extracomment>
        <translation>s sec secondo secondi</translation>
    </message>
    <message>
        <source>and</source>
        <extracomment>The word between two units: “1 hour and 5 minutes”.</extracomment>
        <translation>e</translation>
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
        <translation>Avvia</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>On the button and in the menu: stops the running timer.</extracomment>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>Reset</source>
        <extracomment>On the button and in the menu, during an alarm: ends the alarm.</extracomment>
        <translation>Azzera</translation>
    </message>
    <message>
        <source>Start Chain</source>
        <extracomment>On the button and in the menu, at the first timer of a chain: runs the chain.</extracomment>
        <translation>Avvia catena</translation>
    </message>
    <message>
        <source>Chained</source>
        <extracomment>On the disabled button and in the menu: another timer starts this one.</extracomment>
        <translation>In catena</translation>
    </message>
    <message>
        <source>Stopwatch</source>
        <extracomment>A timer that counts up, and the menu item that makes a timer one.</extracomment>
        <translation>Cronometro</translation>
    </message>
    <message>
        <source>Timer</source>
        <extracomment>The menu item that makes a stopwatch a timer that counts down.</extracomment>
        <translation>Timer</translation>
    </message>
    <message>
        <source>More Options</source>
        <extracomment>Opens the drawer with more options of a timer.</extracomment>
        <translation>Altre opzioni</translation>
    </message>
    <message>
        <source>Hide Options</source>
        <extracomment>Closes the drawer with more options of a timer.</extracomment>
        <translation>Nascondi opzioni</translation>
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
        <translation>Il nome di questo timer</translation>
    </message>
    <message>
        <source>Name</source>
        <extracomment>Accessible name: the name of the timer.</extracomment>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Name on the full screen</source>
        <extracomment>Accessible name: the name of the timer.</extracomment>
        <translation>Nome a schermo intero</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>Accessible name: the time that the timer shows.</extracomment>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Elapsed time</source>
        <translation>Tempo trascorso</translation>
    </message>
    <message>
        <source>Milliseconds</source>
        <translation>Millisecondi</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Ore</translation>
    </message>
    <message>
        <source>h&amp;ours</source>
        <extracomment>Stands after a number field, with those for minutes and seconds in one line.</extracomment>
        <translation>&amp;ore</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuti</translation>
    </message>
    <message>
        <source>&amp;minutes</source>
        <translation>&amp;minuti</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Secondi</translation>
    </message>
    <message>
        <source>&amp;seconds</source>
        <translation>&amp;secondi</translation>
    </message>
    <message>
        <source>&amp;Keep wuffing</source>
        <extracomment>A check box: the alarm goes on until the user stops it. The program&apos;s alarm is the bark of a dog, “wuff”.</extracomment>
        <translation>A&amp;bbaia a oltranza</translation>
    </message>
    <message>
        <source>Fill the screen when the countdown starts; any key or click ends it</source>
        <translation>Occupa tutto lo schermo all’avvio del conto alla rovescia; per uscirne basta un tasto o un clic</translation>
    </message>
    <message>
        <source>Fu&amp;ll screen</source>
        <extracomment>A check box.</extracomment>
        <translation>S&amp;chermo intero</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>Accessible name: the drawer with more options of a timer.</extracomment>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>When fi&amp;nished:</source>
        <extracomment>Stands before the list of finish actions.</extracomment>
        <translation>Alla f&amp;ine:</translation>
    </message>
    <message>
        <source>What happens when the countdown has ended and its alarm is over</source>
        <translation>Che cosa succede quando il conto alla rovescia e l’allarme sono terminati</translation>
    </message>
    <message>
        <source>When finished</source>
        <translation>Alla fine</translation>
    </message>
    <message>
        <source>What can happen when the countdown ends</source>
        <translation>Che cosa può succedere alla fine del conto alla rovescia</translation>
    </message>
    <message>
        <source>Help on finish actions</source>
        <translation>Guida alle azioni finali</translation>
    </message>
    <message>
        <source>What the finish action starts</source>
        <extracomment>Accessible name of the list of presets, or of the linked timer.</extracomment>
        <translation>Che cosa avvia l’azione finale</translation>
    </message>
    <message>
        <source>Choose from the open timers</source>
        <translation>Scegli tra i timer aperti</translation>
    </message>
    <message>
        <source>Choose the timer to start</source>
        <translation>Scegli il timer da avviare</translation>
    </message>
    <message>
        <source>&amp;Alarm:</source>
        <extracomment>Stands before the list of sounds.</extracomment>
        <translation>A&amp;llarme:</translation>
    </message>
    <message>
        <source>Alarm sound</source>
        <translation>Suono dell’allarme</translation>
    </message>
    <message>
        <source>Play the alarm sound</source>
        <translation>Riproduci il suono dell’allarme</translation>
    </message>
    <message>
        <source>Stop the alarm sound</source>
        <translation>Ferma il suono dell’allarme</translation>
    </message>
    <message>
        <source>&amp;Countdown:</source>
        <extracomment>Stands before the list of sounds for the last seconds of a countdown.</extracomment>
        <translation>&amp;Ultimi secondi:</translation>
    </message>
    <message>
        <source>Countdown sound</source>
        <translation>Suono degli ultimi secondi</translation>
    </message>
    <message>
        <source>Play the countdown sound</source>
        <translation>Riproduci il suono degli ultimi secondi</translation>
    </message>
    <message>
        <source>Stop the countdown sound</source>
        <translation>Ferma il suono degli ultimi secondi</translation>
    </message>
    <message>
        <source>Elapsed: %1</source>
        <extracomment>The time since the start of a timer.</extracomment>
        <translation>Trascorso: %1</translation>
    </message>
    <message>
        <source>Ready when you are</source>
        <translation>Pronto quando vuoi</translation>
    </message>
    <message>
        <source>The preset that this timer turns into and runs when it has finished</source>
        <translation>Alla fine questo timer diventa il preset scelto e riparte</translation>
    </message>
    <message>
        <source>Control-Drag a Wuffer</source>
        <extracomment>In place of the name of the timer to start: how to choose one.</extracomment>
        <translation>Trascina un timer con Ctrl</translation>
    </message>
    <message>
        <source>When finished, this timer starts “%1”</source>
        <translation>Alla fine questo timer avvia «%1»</translation>
    </message>
    <message>
        <source>Hold Control and drag the window of another timer onto this one: it starts when this one has finished</source>
        <translation>Tieni premuto Ctrl e trascina la finestra di un altro timer su questa: l’altro parte quando questo è terminato</translation>
    </message>
    <message>
        <source>Sound is off</source>
        <translation>Audio disattivato</translation>
    </message>
    <message>
        <source>Sound is on</source>
        <translation>Audio attivato</translation>
    </message>
    <message>
        <source>Let all timers be heard again</source>
        <translation>Riattiva l’audio di tutti i timer</translation>
    </message>
    <message>
        <source>Mute all timers</source>
        <translation>Silenzia tutti i timer</translation>
    </message>
    <message>
        <source>A timer fills the screen</source>
        <translation>Un timer occupa tutto lo schermo</translation>
    </message>
</context>
<context>
    <name>WufferController</name>
    <message>
        <source>Preferences</source>
        <translation>Preferenze</translation>
    </message>
    <message>
        <source>Converter</source>
        <translation>Convertitore</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>Misure</translation>
    </message>
    <message>
        <source>Wuffer Help</source>
        <translation>Guida di Wuffer</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>About Wuffer</source>
        <translation>À propos de Wuffer</translation>
    </message>
    <message>
        <source>Countdown timers for the desktop</source>
        <translation>Minuteurs pour le bureau</translation>
    </message>
    <message>
        <source>Copyright © 2026 The Wuffer developers
Free software under the MIT License: use it, change it
and pass it on. It comes without any warranty.</source>
        <translation>Copyright © 2026 The Wuffer developers
Logiciel libre sous licence MIT&#x202f;: utilisez-le, modifiez-le
et partagez-le. Il est fourni sans aucune garantie.</translation>
    </message>
    <message>
        <source>Libraries and their licenses</source>
        <translation>Bibliothèques et leurs licences</translation>
    </message>
</context>
<context>
    <name>AboutDialog</name>
    <message>
        <source>sound output</source>
        <extracomment>What a library is used for.</extracomment>
        <translation>sortie audio</translation>
    </message>
    <message>
        <source>sound files</source>
        <translation>fichiers audio</translation>
    </message>
    <message>
        <source>MP3 files</source>
        <translation>fichiers MP3</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>windows</source>
        <extracomment>What a library is used for.</extracomment>
        <translation>fenêtres</translation>
    </message>
    <message>
        <source>X Window System</source>
        <translation>système X Window</translation>
    </message>
    <message>
        <source>windows, session bus</source>
        <extracomment>What a library is used for.</extracomment>
        <translation>fenêtres, bus de session</translation>
    </message>
</context>
<context>
    <name>AlarmAnnouncement</name>
    <message>
        <source>Alarm ended</source>
        <extracomment>Screen readers say it after the name of a timer.</extracomment>
        <translation>Alarme terminée</translation>
    </message>
</context>
<context>
    <name>Chain</name>
    <message>
        <source>Wuffer Chain - %1 of %2</source>
        <extracomment>The place of a timer in a chain: position and number of timers.</extracomment>
        <translation>Chaîne Wuffer - %1 sur %2</translation>
    </message>
    <message>
        <source>Started by “%1”</source>
        <extracomment>Names of timers.</extracomment>
        <translation>Lancé par «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>Starts “%1”</source>
        <translation>Lance «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>Started by “%1”; starts “%2”</source>
        <translation>Lancé par «&#x202f;%1&#x202f;»&#x202f;; lance «&#x202f;%2&#x202f;»</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Countdown timers for the desktop. If the program is already running, it carries out what is asked for here.</source>
        <translation>Minuteurs pour le bureau. Si le programme est déjà lancé, c’est lui qui exécute ce qui est demandé ici.</translation>
    </message>
    <message>
        <source>Wait for the session bus to say what to open.</source>
        <translation>Attendre que le bus de session indique quoi ouvrir.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Afficher cette aide.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Afficher la version.</translation>
    </message>
    <message>
        <source>Unexpected argument “%1”.</source>
        <translation>Argument inattendu&#x202f;: «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>Open a new timer.</source>
        <translation>Ouvrir un nouveau minuteur.</translation>
    </message>
    <message>
        <source>Start every timer.</source>
        <translation>Lancer tous les minuteurs.</translation>
    </message>
    <message>
        <source>Show the preferences.</source>
        <translation>Afficher les préférences.</translation>
    </message>
    <message>
        <source>Show the unit converter.</source>
        <translation>Afficher le convertisseur d’unités.</translation>
    </message>
</context>
<context>
    <name>Converter</name>
    <message>
        <source>Volume (US measures)</source>
        <translation>Volume (mesures américaines)</translation>
    </message>
    <message>
        <source>&amp;Milliliters:</source>
        <translation>M&amp;illilitres&#x202f;:</translation>
    </message>
    <message>
        <source>Milliliters</source>
        <translation>Millilitres</translation>
    </message>
    <message>
        <source>F&amp;luid ounces:</source>
        <translation>Onces &amp;liquides&#x202f;:</translation>
    </message>
    <message>
        <source>Fluid ounces</source>
        <translation>Onces liquides</translation>
    </message>
    <message>
        <source>&amp;Cups:</source>
        <translation>&amp;Tasses&#x202f;:</translation>
    </message>
    <message>
        <source>Cups</source>
        <translation>Tasses</translation>
    </message>
    <message>
        <source>Ta&amp;blespoons:</source>
        <translation>Cuillères à &amp;soupe&#x202f;:</translation>
    </message>
    <message>
        <source>Tablespoons</source>
        <translation>Cuillères à soupe</translation>
    </message>
    <message>
        <source>T&amp;easpoons:</source>
        <translation>Cuillères à &amp;café&#x202f;:</translation>
    </message>
    <message>
        <source>Teaspoons</source>
        <translation>Cuillères à café</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Poids</translation>
    </message>
    <message>
        <source>&amp;Grams:</source>
        <translation>&amp;Grammes&#x202f;:</translation>
    </message>
    <message>
        <source>Grams</source>
        <translation>Grammes</translation>
    </message>
    <message>
        <source>&amp;Ounces:</source>
        <translation>&amp;Onces&#x202f;:</translation>
    </message>
    <message>
        <source>Ounces</source>
        <translation>Onces</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Température</translation>
    </message>
    <message>
        <source>Cel&amp;sius:</source>
        <translation>C&amp;elsius&#x202f;:</translation>
    </message>
    <message>
        <source>Celsius</source>
        <translation>Celsius</translation>
    </message>
    <message>
        <source>Fah&amp;renheit:</source>
        <translation>Fa&amp;hrenheit&#x202f;:</translation>
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
        <translation>Ne rien faire</translation>
    </message>
    <message>
        <source>Loop this Wuffer</source>
        <translation>Relancer en boucle</translation>
    </message>
    <message>
        <source>Start a Preset</source>
        <translation>Lancer un préréglage</translation>
    </message>
    <message>
        <source>Start other open Wuffer</source>
        <translation>Lancer un autre minuteur</translation>
    </message>
</context>
<context>
    <name>FreedesktopNotifications</name>
    <message>
        <source>Show</source>
        <extracomment>A button of a notification: brings the timer to the front.</extracomment>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>A button of a notification: ends the alarm.</extracomment>
        <translation>Arrêter</translation>
    </message>
</context>
<context>
    <name>GatheredNotifications</name>
    <message numerus="yes">
        <source>%n timers have ended</source>
        <translation>
            <numerusform>%n minuteur est terminé</numerusform>
            <numerusform>%n minuteurs sont terminés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>et %n autre</numerusform>
            <numerusform>et %n autres</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Back</source>
        <extracomment>Goes to the page of the help that was shown before.</extracomment>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Forward</source>
        <extracomment>Goes to the page of the help that was shown after this one.</extracomment>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Search the help</source>
        <translation>Rechercher dans l’aide</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Pages</source>
        <extracomment>Accessible name of the list of pages.</extracomment>
        <translation>Pages</translation>
    </message>
</context>
<context>
    <name>HelpPages</name>
    <message>
        <source>en</source>
        <extracomment>The folder with the help pages in your language, such as &quot;de&quot;. Leave &quot;en&quot; if there is none.</extracomment>
        <translation>fr</translation>
    </message>
    <message>
        <source>%1 menu</source>
        <extracomment>The title of a table of keys; %1 is the name of a menu.</extracomment>
        <translation>Menu %1</translation>
    </message>
    <message>
        <source>This help is available in English only.</source>
        <extracomment>Stands above the pages of the help in languages that the help is not translated to.</extracomment>
        <translation>Cette aide n’est disponible qu’en anglais.</translation>
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
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Found: %1</source>
        <translation>Résultats&#x202f;: %1</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Aucun résultat</translation>
    </message>
</context>
<context>
    <name>Home</name>
    <message>
        <source>New Timer</source>
        <translation>Nouveau minuteur</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Préréglages</translation>
    </message>
</context>
<context>
    <name>KeepOnTopItem</name>
    <message>
        <source>Keep on &amp;Top</source>
        <translation>Toujours au &amp;premier plan</translation>
    </message>
</context>
<context>
    <name>KeepWuffing</name>
    <message>
        <source>A stopwatch has no alarm that could go on</source>
        <translation>Un chronomètre n’a pas d’alarme à répéter</translation>
    </message>
    <message>
        <source>Only a timer that is to “%1” when finished can go on wuffing</source>
        <extracomment>%1 is the finish action “Do Nothing”.</extracomment>
        <translation>Seul un minuteur réglé sur «&#x202f;%1&#x202f;» à la fin peut aboyer sans arrêt</translation>
    </message>
    <message>
        <source>The sound of all timers is off</source>
        <translation>Le son de tous les minuteurs est coupé</translation>
    </message>
    <message>
        <source>Repeat the alarm sound until you press %1</source>
        <extracomment>%1 is the title of the button “Reset”.</extracomment>
        <translation>Répéter le son d’alarme jusqu’à l’appui sur «&#x202f;%1&#x202f;»</translation>
    </message>
</context>
<context>
    <name>LaunchChoices</name>
    <message>
        <source>Open a Wuffer</source>
        <translation>Ouvrir un minuteur</translation>
    </message>
    <message>
        <source>Do Nothing</source>
        <translation>Ne rien faire</translation>
    </message>
    <message>
        <source>Open Preset ⌘1</source>
        <translation>Ouvrir le préréglage ⌘1</translation>
    </message>
    <message>
        <source>Open and Start Preset ⌘1</source>
        <translation>Ouvrir et lancer le préréglage ⌘1</translation>
    </message>
</context>
<context>
    <name>LinkMenu</name>
    <message>
        <source>When F&amp;inished, Start</source>
        <translation>À la fin, &amp;lancer</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Aucun</translation>
    </message>
    <message>
        <source>No &amp;Other Timer Is Open</source>
        <translation>Aucun a&amp;utre minuteur ouvert</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;New Timer</source>
        <translation>&amp;Nouveau minuteur</translation>
    </message>
    <message>
        <source>Start &amp;All</source>
        <translation>&amp;Tout lancer</translation>
    </message>
    <message>
        <source>Mute All</source>
        <translation>Couper tous les sons</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Préférences…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Timer</source>
        <translation>&amp;Minuteur</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Lancer</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Renommer</translation>
    </message>
    <message>
        <source>Stopwatch</source>
        <translation>Chronomètre</translation>
    </message>
    <message>
        <source>Count Down to a &amp;Date…</source>
        <translation>&amp;Décompte jusqu’à une date…</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>Ré&amp;initialiser</translation>
    </message>
    <message>
        <source>&amp;Keep Wuffing</source>
        <translation>&amp;Aboyer sans arrêt</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>&amp;Plein écran</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Plus d’options</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>Fe&amp;nêtre</translation>
    </message>
    <message>
        <source>&amp;Minimize</source>
        <translation>&amp;Réduire</translation>
    </message>
    <message>
        <source>&amp;Converter</source>
        <translation>&amp;Convertisseur</translation>
    </message>
    <message>
        <source>M&amp;easurements</source>
        <translation>&amp;Mesures</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>Wuffer &amp;Help</source>
        <translation>&amp;Aide de Wuffer</translation>
    </message>
    <message>
        <source>Wuffer on the &amp;Web</source>
        <translation>Wuffer sur le &amp;Web</translation>
    </message>
    <message>
        <source>&amp;About Wuffer</source>
        <translation>À &amp;propos de Wuffer</translation>
    </message>
</context>
<context>
    <name>MeasurementsPanel</name>
    <message>
        <source>Kitchen measurements</source>
        <translation>Mesures de cuisine</translation>
    </message>
    <message>
        <source>1 teaspoon|1 tsp|⅓ tbsp|⅙ fl oz|4.93 mL</source>
        <translation>1 cuillère à café|1 c. à c.|⅓ c. à s.|⅙ fl oz|4.93 ml</translation>
    </message>
    <message>
        <source>1 tablespoon|3 tsp|1 tbsp|½ fl oz|14.79 mL</source>
        <translation>1 cuillère à soupe|3 c. à c.|1 c. à s.|½ fl oz|14.79 ml</translation>
    </message>
    <message>
        <source>1 fluid ounce|6 tsp|2 tbsp|1 fl oz|29.57 mL</source>
        <translation>1 once liquide|6 c. à c.|2 c. à s.|1 fl oz|29.57 ml</translation>
    </message>
    <message>
        <source>¼ cup|12 tsp|4 tbsp|2 fl oz|59.15 mL</source>
        <translation>¼ tasse|12 c. à c.|4 c. à s.|2 fl oz|59.15 ml</translation>
    </message>
    <message>
        <source>⅓ cup|16 tsp|5⅓ tbsp|2⅔ fl oz|78.86 mL</source>
        <translation>⅓ tasse|16 c. à c.|5⅓ c. à s.|2⅔ fl oz|78.86 ml</translation>
    </message>
    <message>
        <source>½ cup|24 tsp|8 tbsp|4 fl oz|118.29 mL</source>
        <translation>½ tasse|24 c. à c.|8 c. à s.|4 fl oz|118.29 ml</translation>
    </message>
    <message>
        <source>⅔ cup|32 tsp|10⅔ tbsp|5⅓ fl oz|157.73 mL</source>
        <translation>⅔ tasse|32 c. à c.|10⅔ c. à s.|5⅓ fl oz|157.73 ml</translation>
    </message>
    <message>
        <source>¾ cup|36 tsp|12 tbsp|6 fl oz|177.44 mL</source>
        <translation>¾ tasse|36 c. à c.|12 c. à s.|6 fl oz|177.44 ml</translation>
    </message>
    <message>
        <source>1 cup|48 tsp|16 tbsp|8 fl oz|236.59 mL</source>
        <translation>1 tasse|48 c. à c.|16 c. à s.|8 fl oz|236.59 ml</translation>
    </message>
    <message>
        <source>1 pint|96 tsp|32 tbsp|16 fl oz|473.18 mL</source>
        <translation>1 pinte|96 c. à c.|32 c. à s.|16 fl oz|473.18 ml</translation>
    </message>
    <message>
        <source>1 quart|192 tsp|64 tbsp|32 fl oz|946.35 mL</source>
        <translation>1 quart|192 c. à c.|64 c. à s.|32 fl oz|946.35 ml</translation>
    </message>
    <message>
        <source>1 gallon|768 tsp|256 tbsp|128 fl oz|3785.41 mL</source>
        <translation>1 gallon|768 c. à c.|256 c. à s.|128 fl oz|3785.41 ml</translation>
    </message>
    <message>
        <source>1 metric teaspoon|0.17 fl oz|5 mL</source>
        <translation>1 cuillère à café métrique|0.17 fl oz|5 ml</translation>
    </message>
    <message>
        <source>1 metric tablespoon|0.51 fl oz|15 mL</source>
        <translation>1 cuillère à soupe métrique|0.51 fl oz|15 ml</translation>
    </message>
    <message>
        <source>1 Australian tablespoon|0.68 fl oz|20 mL</source>
        <translation>1 cuillère à soupe australienne|0.68 fl oz|20 ml</translation>
    </message>
    <message>
        <source>1 Japanese cup|6.76 fl oz|200 mL</source>
        <translation>1 tasse japonaise|6.76 fl oz|200 ml</translation>
    </message>
    <message>
        <source>1 metric cup|8.45 fl oz|250 mL</source>
        <translation>1 tasse métrique|8.45 fl oz|250 ml</translation>
    </message>
    <message>
        <source>1 liter|33.81 fl oz|1000 mL</source>
        <translation>1 litre|33.81 fl oz|1000 ml</translation>
    </message>
    <message>
        <source>1 UK fluid ounce|0.96 fl oz|28.41 mL</source>
        <translation>1 once liquide britannique|0.96 fl oz|28.41 ml</translation>
    </message>
    <message>
        <source>1 UK pint|19.22 fl oz|568.26 mL</source>
        <translation>1 pinte britannique|19.22 fl oz|568.26 ml</translation>
    </message>
    <message>
        <source>1 UK quart|38.43 fl oz|1136.52 mL</source>
        <translation>1 quart britannique|38.43 fl oz|1136.52 ml</translation>
    </message>
    <message>
        <source>1 UK gallon|153.72 fl oz|4546.09 mL</source>
        <translation>1 gallon britannique|153.72 fl oz|4546.09 ml</translation>
    </message>
    <message>
        <source>1 ounce|1 oz|0.0625 lb|28.35 g</source>
        <translation>1 once|1 oz|0.0625 lb|28.35 g</translation>
    </message>
    <message>
        <source>2 ounces|2 oz|0.125 lb|56.70 g</source>
        <translation>2 onces|2 oz|0.125 lb|56.70 g</translation>
    </message>
    <message>
        <source>¼ pound|4 oz|0.25 lb|113.40 g</source>
        <translation>¼ livre|4 oz|0.25 lb|113.40 g</translation>
    </message>
    <message>
        <source>½ pound|8 oz|0.5 lb|226.80 g</source>
        <translation>½ livre|8 oz|0.5 lb|226.80 g</translation>
    </message>
    <message>
        <source>¾ pound|12 oz|0.75 lb|340.19 g</source>
        <translation>¾ livre|12 oz|0.75 lb|340.19 g</translation>
    </message>
    <message>
        <source>1 pound|16 oz|1 lb|453.59 g</source>
        <translation>1 livre|16 oz|1 lb|453.59 g</translation>
    </message>
    <message>
        <source>2 pounds|32 oz|2 lb|907.18 g</source>
        <translation>2 livres|32 oz|2 lb|907.18 g</translation>
    </message>
    <message>
        <source>50 grams|1.76 oz|0.110 lb|50 g</source>
        <translation>50 grammes|1.76 oz|0.110 lb|50 g</translation>
    </message>
    <message>
        <source>100 grams|3.53 oz|0.220 lb|100 g</source>
        <translation>100 grammes|3.53 oz|0.220 lb|100 g</translation>
    </message>
    <message>
        <source>250 grams|8.82 oz|0.551 lb|250 g</source>
        <translation>250 grammes|8.82 oz|0.551 lb|250 g</translation>
    </message>
    <message>
        <source>500 grams|17.64 oz|1.102 lb|500 g</source>
        <translation>500 grammes|17.64 oz|1.102 lb|500 g</translation>
    </message>
    <message>
        <source>1 kilogram|35.27 oz|2.205 lb|1000 g</source>
        <translation>1 kilogramme|35.27 oz|2.205 lb|1000 g</translation>
    </message>
    <message>
        <source>⅛ stick|1 tbsp|1⁄16 cup|½ oz|14.17 g</source>
        <translation>⅛ bâtonnet|1 c. à s.|1⁄16 tasse|½ oz|14.17 g</translation>
    </message>
    <message>
        <source>¼ stick|2 tbsp|⅛ cup|1 oz|28.35 g</source>
        <translation>¼ bâtonnet|2 c. à s.|⅛ tasse|1 oz|28.35 g</translation>
    </message>
    <message>
        <source>½ stick|4 tbsp|¼ cup|2 oz|56.70 g</source>
        <translation>½ bâtonnet|4 c. à s.|¼ tasse|2 oz|56.70 g</translation>
    </message>
    <message>
        <source>1 stick|8 tbsp|½ cup|4 oz|113.40 g</source>
        <translation>1 bâtonnet|8 c. à s.|½ tasse|4 oz|113.40 g</translation>
    </message>
    <message>
        <source>2 sticks|16 tbsp|1 cup|8 oz|226.80 g</source>
        <translation>2 bâtonnets|16 c. à s.|1 tasse|8 oz|226.80 g</translation>
    </message>
    <message>
        <source>4 sticks|32 tbsp|2 cups|16 oz|453.59 g</source>
        <translation>4 bâtonnets|32 c. à s.|2 tasses|16 oz|453.59 g</translation>
    </message>
    <message>
        <source>Very cool|Gas ¼|225 °F|107 °C|110 °C</source>
        <translation>Très doux|Gaz ¼|225 °F|107 °C|110 °C</translation>
    </message>
    <message>
        <source>Very cool|Gas ½|250 °F|121 °C|120 °C</source>
        <translation>Très doux|Gaz ½|250 °F|121 °C|120 °C</translation>
    </message>
    <message>
        <source>Cool|Gas 1|275 °F|135 °C|140 °C</source>
        <translation>Doux|Gaz 1|275 °F|135 °C|140 °C</translation>
    </message>
    <message>
        <source>Cool|Gas 2|300 °F|149 °C|150 °C</source>
        <translation>Doux|Gaz 2|300 °F|149 °C|150 °C</translation>
    </message>
    <message>
        <source>Warm|Gas 3|325 °F|163 °C|160 °C</source>
        <translation>Modéré|Gaz 3|325 °F|163 °C|160 °C</translation>
    </message>
    <message>
        <source>Moderate|Gas 4|350 °F|177 °C|180 °C</source>
        <translation>Moyen|Gaz 4|350 °F|177 °C|180 °C</translation>
    </message>
    <message>
        <source>Fairly hot|Gas 5|375 °F|191 °C|190 °C</source>
        <translation>Assez chaud|Gaz 5|375 °F|191 °C|190 °C</translation>
    </message>
    <message>
        <source>Fairly hot|Gas 6|400 °F|204 °C|200 °C</source>
        <translation>Assez chaud|Gaz 6|400 °F|204 °C|200 °C</translation>
    </message>
    <message>
        <source>Hot|Gas 7|425 °F|218 °C|220 °C</source>
        <translation>Chaud|Gaz 7|425 °F|218 °C|220 °C</translation>
    </message>
    <message>
        <source>Very hot|Gas 8|450 °F|232 °C|230 °C</source>
        <translation>Très chaud|Gaz 8|450 °F|232 °C|230 °C</translation>
    </message>
    <message>
        <source>Very hot|Gas 9|475 °F|246 °C|250 °C</source>
        <translation>Très chaud|Gaz 9|475 °F|246 °C|250 °C</translation>
    </message>
    <message>
        <source>Teaspoons to milliliters|× 4.929</source>
        <translation>Cuillères à café en millilitres|× 4.929</translation>
    </message>
    <message>
        <source>Tablespoons to milliliters|× 14.79</source>
        <translation>Cuillères à soupe en millilitres|× 14.79</translation>
    </message>
    <message>
        <source>Fluid ounces to milliliters|× 29.57</source>
        <translation>Onces liquides en millilitres|× 29.57</translation>
    </message>
    <message>
        <source>Cups to milliliters|× 236.6</source>
        <translation>Tasses en millilitres|× 236.6</translation>
    </message>
    <message>
        <source>Milliliters to fluid ounces|× 0.03381</source>
        <translation>Millilitres en onces liquides|× 0.03381</translation>
    </message>
    <message>
        <source>Quarts to liters|× 0.9464</source>
        <translation>Quarts en litres|× 0.9464</translation>
    </message>
    <message>
        <source>Liters to quarts|× 1.057</source>
        <translation>Litres en quarts|× 1.057</translation>
    </message>
    <message>
        <source>Ounces to grams|× 28.35</source>
        <translation>Onces en grammes|× 28.35</translation>
    </message>
    <message>
        <source>Grams to ounces|× 0.03527</source>
        <translation>Grammes en onces|× 0.03527</translation>
    </message>
    <message>
        <source>Pounds to kilograms|× 0.4536</source>
        <translation>Livres en kilogrammes|× 0.4536</translation>
    </message>
    <message>
        <source>Kilograms to pounds|× 2.205</source>
        <translation>Kilogrammes en livres|× 2.205</translation>
    </message>
    <message>
        <source>Inches to centimeters|× 2.54</source>
        <translation>Pouces en centimètres|× 2.54</translation>
    </message>
    <message>
        <source>Centimeters to inches|× 0.3937</source>
        <translation>Centimètres en pouces|× 0.3937</translation>
    </message>
    <message>
        <source>Celsius to Fahrenheit|× 1.8, then + 32</source>
        <translation>Celsius en Fahrenheit|× 1.8, puis + 32</translation>
    </message>
    <message>
        <source>Fahrenheit to Celsius|− 32, then ÷ 1.8</source>
        <translation>Fahrenheit en Celsius|− 32, puis ÷ 1.8</translation>
    </message>
    <message>
        <source>Volume, US measures</source>
        <translation>Volume, mesures américaines</translation>
    </message>
    <message>
        <source>Measure|Teaspoons|Tablespoons|Fluid ounces|Milliliters</source>
        <translation>Mesure|Cuillères à café|Cuillères à soupe|Onces liquides|Millilitres</translation>
    </message>
    <message>
        <source>Volume, other measures</source>
        <translation>Volume, autres mesures</translation>
    </message>
    <message>
        <source>Measure|US fluid ounces|Milliliters</source>
        <translation>Mesure|Onces liquides US|Millilitres</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Poids</translation>
    </message>
    <message>
        <source>Weight|Ounces|Pounds|Grams</source>
        <translation>Poids|Onces|Livres|Grammes</translation>
    </message>
    <message>
        <source>Butter, US sticks</source>
        <translation>Beurre, bâtonnets américains</translation>
    </message>
    <message>
        <source>Butter|Tablespoons|Cups|Ounces|Grams</source>
        <translation>Beurre|Cuillères à soupe|Tasses|Onces|Grammes</translation>
    </message>
    <message>
        <source>Oven temperatures</source>
        <translation>Températures du four</translation>
    </message>
    <message>
        <source>Heat|Gas mark|Fahrenheit|Celsius|On the dial</source>
        <translation>Four|Gaz (R.-U.)|Fahrenheit|Celsius|Réglage</translation>
    </message>
    <message>
        <source>Common conversions</source>
        <translation>Conversions courantes</translation>
    </message>
    <message>
        <source>Conversion|Calculation</source>
        <translation>Conversion|Calcul</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <extracomment>The title of a page.</extracomment>
        <translation>&amp;Général</translation>
    </message>
    <message>
        <source>At &amp;launch:</source>
        <extracomment>Stands before the list of what opens when the program starts.</extracomment>
        <translation>Au &amp;démarrage&#x202f;:</translation>
    </message>
    <message>
        <source>What opens when the program starts</source>
        <translation>Ce qui s’ouvre au démarrage du programme</translation>
    </message>
    <message>
        <source>At launch</source>
        <translation>Au démarrage</translation>
    </message>
    <message>
        <source>Finished te&amp;xt:</source>
        <extracomment>Stands before the text that timers show at their end.</extracomment>
        <translation>&amp;Texte de fin&#x202f;:</translation>
    </message>
    <message>
        <source>What a timer says when its countdown has ended</source>
        <translation>Ce qu’affiche un minuteur à la fin de son décompte</translation>
    </message>
    <message>
        <source>Finished text</source>
        <translation>Texte de fin</translation>
    </message>
    <message>
        <source>A timer that is opened from a preset starts at once</source>
        <translation>Un minuteur ouvert depuis un préréglage est lancé aussitôt</translation>
    </message>
    <message>
        <source>Start presets when they are &amp;opened</source>
        <translation>&amp;Lancer les préréglages à l’ouverture</translation>
    </message>
    <message>
        <source>The desktop does not tell of countdowns that have ended</source>
        <translation>Le bureau ne signale pas la fin des décomptes</translation>
    </message>
    <message>
        <source>Turn off &amp;notifications</source>
        <translation>Désactiver les n&amp;otifications</translation>
    </message>
    <message>
        <source>Running timers do not show in the panel of the desktop</source>
        <translation>Les minuteurs en marche n’apparaissent pas dans le tableau de bord</translation>
    </message>
    <message>
        <source>Hide the status &amp;item</source>
        <extracomment>The item of the program in the panel of the desktop.</extracomment>
        <translation>Masquer l’&amp;indicateur d’état</translation>
    </message>
    <message>
        <source>Timers refresh their display less often and show no milliseconds.
Beeps and the end of a countdown come up to 0.2 seconds late.</source>
        <translation>L’affichage est actualisé moins souvent, sans les millisecondes.
Les bips et la fin du décompte ont jusqu’à 0,2 seconde de retard.</translation>
    </message>
    <message>
        <source>&amp;Energy saver</source>
        <translation>É&amp;conomie d’énergie</translation>
    </message>
    <message>
        <source>&amp;Sounds</source>
        <extracomment>The title of a page.</extracomment>
        <translation>&amp;Sons</translation>
    </message>
    <message>
        <source>No timer makes a sound</source>
        <translation>Aucun minuteur n’émet de son</translation>
    </message>
    <message>
        <source>&amp;Mute all timers</source>
        <translation>&amp;Couper le son de tous les minuteurs</translation>
    </message>
    <message>
        <source>The last seconds of a countdown pass in silence</source>
        <translation>Les dernières secondes d’un décompte sont silencieuses</translation>
    </message>
    <message>
        <source>Turn off countdown &amp;beeps</source>
        <translation>Désactiver les &amp;bips du décompte</translation>
    </message>
    <message>
        <source>&amp;Alarm:</source>
        <translation>Ala&amp;rme&#x202f;:</translation>
    </message>
    <message>
        <source>Alarm sound of new timers</source>
        <translation>Son d’alarme des nouveaux minuteurs</translation>
    </message>
    <message>
        <source>Play the alarm sound</source>
        <translation>Écouter le son d’alarme</translation>
    </message>
    <message>
        <source>Stop the alarm sound</source>
        <translation>Arrêter le son d’alarme</translation>
    </message>
    <message>
        <source>In use:</source>
        <extracomment>Stands before the name of a sound.</extracomment>
        <translation>Utilisé&#x202f;:</translation>
    </message>
    <message>
        <source>Alarm sound in use</source>
        <translation>Son d’alarme utilisé</translation>
    </message>
    <message>
        <source>Alarm sound that cannot be played</source>
        <translation>Son d’alarme illisible</translation>
    </message>
    <message>
        <source>&amp;Countdown:</source>
        <translation>&amp;Décompte&#x202f;:</translation>
    </message>
    <message>
        <source>Countdown sound of new timers</source>
        <translation>Son de décompte des nouveaux minuteurs</translation>
    </message>
    <message>
        <source>Play the countdown sound</source>
        <translation>Écouter le son de décompte</translation>
    </message>
    <message>
        <source>Stop the countdown sound</source>
        <translation>Arrêter le son de décompte</translation>
    </message>
    <message>
        <source>Countdown sound in use</source>
        <translation>Son de décompte utilisé</translation>
    </message>
    <message>
        <source>Countdown sound that cannot be played</source>
        <translation>Son de décompte illisible</translation>
    </message>
    <message>
        <source>Timers opened from now on begin with these sounds. Each timer offers a choice of its own under More Options.</source>
        <translation>Les minuteurs ouverts désormais auront ces sons. Chaque minuteur propose son propre choix sous «&#x202f;Plus d’options&#x202f;».</translation>
    </message>
    <message>
        <source>Mute All</source>
        <translation>Couper tous les sons</translation>
    </message>
    <message>
        <source>Unmute All</source>
        <translation>Rétablir tous les sons</translation>
    </message>
    <message>
        <source>Select a sound file</source>
        <translation>Choisir un fichier audio</translation>
    </message>
    <message>
        <source>Unplayable:</source>
        <extracomment>Stands before the name of the file of a sound.</extracomment>
        <translation>Illisible&#x202f;:</translation>
    </message>
    <message>
        <source>Missing:</source>
        <translation>Introuvable&#x202f;:</translation>
    </message>
    <message>
        <source>Running timers do not show in the panel</source>
        <extracomment>A line below “Hide the status item”; as short as possible.</extracomment>
        <translation>Les minuteurs en marche n’apparaissent pas dans le tableau de bord</translation>
    </message>
    <message>
        <source>No milliseconds; beeps and alarms up to 0.2 s late</source>
        <extracomment>A line below “Energy saver”; as short as possible.</extracomment>
        <translation>Sans millisecondes&#x202f;; bips et alarmes ont jusqu’à 0,2 seconde de retard</translation>
    </message>
</context>
<context>
    <name>Preset</name>
    <message>
        <source>Preset %1</source>
        <extracomment>In the display of a timer opened from a preset; %1 is its number.</extracomment>
        <translation>Préréglage %1</translation>
    </message>
    <message>
        <source>Saved to Preset %1</source>
        <extracomment>In the display of a timer saved into a preset; %1 is its number.</extracomment>
        <translation>Préréglage %1 enregistré</translation>
    </message>
</context>
<context>
    <name>PresetsMenu</name>
    <message>
        <source>&amp;Presets</source>
        <translation>&amp;Préréglages</translation>
    </message>
    <message>
        <source>Save Wuffer to Preset</source>
        <translation>Enregistrer comme préréglage</translation>
    </message>
    <message>
        <source>Shortcut: Hold Control and press a number key</source>
        <translation>Raccourci&#x202f;: maintenir Ctrl et appuyer sur un chiffre</translation>
    </message>
    <message>
        <source>⌘%1 (Overwrite %2)</source>
        <extracomment>The number of a preset, and the name and time in it, which saving replaces.</extracomment>
        <translation>⌘%1 (remplacer %2)</translation>
    </message>
</context>
<context>
    <name>SoundEntries</name>
    <message>
        <source>Wuff (Default)</source>
        <extracomment>A sound of the program: the bark of a dog.</extracomment>
        <translation>Wuff (par défaut)</translation>
    </message>
    <message>
        <source>Crow (Default)</source>
        <extracomment>A sound of the program: the caw of a crow.</extracomment>
        <translation>Corneille (par défaut)</translation>
    </message>
    <message>
        <source>Select another sound...</source>
        <translation>Choisir un autre son...</translation>
    </message>
    <message>
        <source>Clear custom sounds</source>
        <translation>Retirer les sons ajoutés</translation>
    </message>
    <message>
        <source>Manage Sounds...</source>
        <translation>Gérer les sons...</translation>
    </message>
</context>
<context>
    <name>StatusItem</name>
    <message>
        <source>%1: %2</source>
        <extracomment>The name of the program and the time of a timer.</extracomment>
        <translation>%1&#x202f;: %2</translation>
    </message>
</context>
<context>
    <name>TargetTime</name>
    <message>
        <source>Target Date</source>
        <extracomment>The title of the sheet in which the user picks the date at which a timer rings.</extracomment>
        <translation>Date cible</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendrier</translation>
    </message>
    <message>
        <source>Ring &amp;at:</source>
        <extracomment>Stands before the date and time at which a timer rings.</extracomment>
        <translation>&amp;Sonner le&#x202f;:</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>How long that is from now</source>
        <translation>Temps restant jusque-là</translation>
    </message>
</context>
<context>
    <name>TargetTimeSheet</name>
    <message>
        <source>Previous month</source>
        <extracomment>Accessible name: the arrow of the calendar that turns one month back.</extracomment>
        <translation>Mois précédent</translation>
    </message>
    <message>
        <source>Next month</source>
        <extracomment>Accessible name: the arrow of the calendar that turns one month on.</extracomment>
        <translation>Mois suivant</translation>
    </message>
</context>
<context>
    <name>TimeDistance</name>
    <message>
        <source>%1 d</source>
        <extracomment>Days, hours, minutes and seconds, abbreviated, as in “in 4 h 12 min”.</extracomment>
        <translation>%1&#xa0;j</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1&#xa0;h</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1&#xa0;min</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1&#xa0;s</translation>
    </message>
    <message>
        <source>now</source>
        <extracomment>The time that is left until a date: none.</extracomment>
        <translation>maintenant</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>Two units of a time, the larger first: “4 h 12 min”.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>in %1</source>
        <extracomment>The time that is left until a date: “in 4 h 12 min”.</extracomment>
        <translation>dans %1</translation>
    </message>
</context>
<context>
    <name>TimeFormat</name>
    <message>
        <source>%1d </source>
        <extracomment>The parts of a running time, such as “1h 5m 3s”: days, hours, minutes and seconds. They stand side by side, so all but the seconds end with a blank. The display has room for ten characters at its largest size.</extracomment>
        <translation>%1j </translation>
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
        <translation>j jr jrs jour jours</translation>
    </message>
    <message>
        <source>h hr hrs hour hours</source>
        <extracomment>The same for hours.</extracomment>
        <translation>h hr hrs heure heures</translation>
    </message>
    <message>
        <source>m min mins minute minutes</source>
        <extracomment>The same for minutes.</extracomment>
        <translation>m mn min mins minute minutes</translation>
    </message>
    <message>
        <source>s sec secs second seconds</source>
        <extracomment>The same for seconds.</extracomment>
        <translation>s sec secs seconde secondes</translation>
    </message>
    <message>
        <source>and</source>
        <extracomment>The word between two units: “1 hour and 5 minutes”.</extracomment>
        <translation>et</translation>
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
        <translation>Lancer</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>On the button and in the menu: stops the running timer.</extracomment>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Reset</source>
        <extracomment>On the button and in the menu, during an alarm: ends the alarm.</extracomment>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Start Chain</source>
        <extracomment>On the button and in the menu, at the first timer of a chain: runs the chain.</extracomment>
        <translation>Lancer la chaîne</translation>
    </message>
    <message>
        <source>Chained</source>
        <extracomment>On the disabled button and in the menu: another timer starts this one.</extracomment>
        <translation>Enchaîné</translation>
    </message>
    <message>
        <source>Stopwatch</source>
        <extracomment>A timer that counts up, and the menu item that makes a timer one.</extracomment>
        <translation>Chronomètre</translation>
    </message>
    <message>
        <source>Timer</source>
        <extracomment>The menu item that makes a stopwatch a timer that counts down.</extracomment>
        <translation>Minuteur</translation>
    </message>
    <message>
        <source>More Options</source>
        <extracomment>Opens the drawer with more options of a timer.</extracomment>
        <translation>Plus d’options</translation>
    </message>
    <message>
        <source>Hide Options</source>
        <extracomment>Closes the drawer with more options of a timer.</extracomment>
        <translation>Moins d’options</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <extracomment>A line of a list: the name of a timer and a time, such as “Tea - 0h 5m 0s”.</extracomment>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>The name of a timer and what its display shows, such as “Tea: 5m 3s”.</extracomment>
        <translation>%1&#x202f;: %2</translation>
    </message>
</context>
<context>
    <name>Wuffer</name>
    <message>
        <source>Display</source>
        <extracomment>Accessible name: the part of the window that shows the time.</extracomment>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>The name of this timer</source>
        <translation>Le nom de ce minuteur</translation>
    </message>
    <message>
        <source>Name</source>
        <extracomment>Accessible name: the name of the timer.</extracomment>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Name on the full screen</source>
        <extracomment>Accessible name: the name of the timer.</extracomment>
        <translation>Nom en plein écran</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>Accessible name: the time that the timer shows.</extracomment>
        <translation>Temps</translation>
    </message>
    <message>
        <source>Elapsed time</source>
        <translation>Temps écoulé</translation>
    </message>
    <message>
        <source>Milliseconds</source>
        <translation>Millisecondes</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Heures</translation>
    </message>
    <message>
        <source>h&amp;ours</source>
        <extracomment>Stands after a number field, with those for minutes and seconds in one line.</extracomment>
        <translation>&amp;heures</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutes</translation>
    </message>
    <message>
        <source>&amp;minutes</source>
        <translation>m&amp;inutes</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Secondes</translation>
    </message>
    <message>
        <source>&amp;seconds</source>
        <translation>&amp;secondes</translation>
    </message>
    <message>
        <source>&amp;Keep wuffing</source>
        <extracomment>A check box: the alarm goes on until the user stops it. The program&apos;s alarm is the bark of a dog, “wuff”.</extracomment>
        <translation>A&amp;boyer sans arrêt</translation>
    </message>
    <message>
        <source>Fill the screen when the countdown starts; any key or click ends it</source>
        <translation>Occuper tout l’écran dès le début du décompte&#x202f;; une touche ou un clic pour en sortir</translation>
    </message>
    <message>
        <source>Fu&amp;ll screen</source>
        <extracomment>A check box.</extracomment>
        <translation>Plein é&amp;cran</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>Accessible name: the drawer with more options of a timer.</extracomment>
        <translation>Options</translation>
    </message>
    <message>
        <source>When fi&amp;nished:</source>
        <extracomment>Stands before the list of finish actions.</extracomment>
        <translation>À &amp;la fin&#x202f;:</translation>
    </message>
    <message>
        <source>What happens when the countdown has ended and its alarm is over</source>
        <translation>Ce qui se passe une fois le décompte et son alarme terminés</translation>
    </message>
    <message>
        <source>When finished</source>
        <translation>À la fin</translation>
    </message>
    <message>
        <source>What can happen when the countdown ends</source>
        <translation>Ce qui peut se passer à la fin du décompte</translation>
    </message>
    <message>
        <source>Help on finish actions</source>
        <translation>Aide sur les actions de fin</translation>
    </message>
    <message>
        <source>What the finish action starts</source>
        <extracomment>Accessible name of the list of presets, or of the linked timer.</extracomment>
        <translation>Ce que lance l’action de fin</translation>
    </message>
    <message>
        <source>Choose from the open timers</source>
        <translation>Choisir parmi les minuteurs ouverts</translation>
    </message>
    <message>
        <source>Choose the timer to start</source>
        <translation>Choisir le minuteur à lancer</translation>
    </message>
    <message>
        <source>&amp;Alarm:</source>
        <extracomment>Stands before the list of sounds.</extracomment>
        <translation>Ala&amp;rme&#x202f;:</translation>
    </message>
    <message>
        <source>Alarm sound</source>
        <translation>Son d’alarme</translation>
    </message>
    <message>
        <source>Play the alarm sound</source>
        <translation>Écouter le son d’alarme</translation>
    </message>
    <message>
        <source>Stop the alarm sound</source>
        <translation>Arrêter le son d’alarme</translation>
    </message>
    <message>
        <source>&amp;Countdown:</source>
        <extracomment>Stands before the list of sounds for the last seconds of a countdown.</extracomment>
        <translation>&amp;Décompte&#x202f;:</translation>
    </message>
    <message>
        <source>Countdown sound</source>
        <translation>Son de décompte</translation>
    </message>
    <message>
        <source>Play the countdown sound</source>
        <translation>Écouter le son de décompte</translation>
    </message>
    <message>
        <source>Stop the countdown sound</source>
        <translation>Arrêter le son de décompte</translation>
    </message>
    <message>
        <source>Elapsed: %1</source>
        <extracomment>The time since the start of a timer.</extracomment>
        <translation>Écoulé&#x202f;: %1</translation>
    </message>
    <message>
        <source>Ready when you are</source>
        <translation>Prêt quand vous voulez</translation>
    </message>
    <message>
        <source>The preset that this timer turns into and runs when it has finished</source>
        <translation>Le préréglage que ce minuteur adopte et lance à la fin</translation>
    </message>
    <message>
        <source>Control-Drag a Wuffer</source>
        <extracomment>In place of the name of the timer to start: how to choose one.</extracomment>
        <translation>Ctrl+glisser un minuteur</translation>
    </message>
    <message>
        <source>When finished, this timer starts “%1”</source>
        <translation>À la fin, ce minuteur lance «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>Hold Control and drag the window of another timer onto this one: it starts when this one has finished</source>
        <translation>Maintenir Ctrl et faire glisser la fenêtre d’un autre minuteur sur celle-ci&#x202f;: il sera lancé à la fin de ce minuteur</translation>
    </message>
    <message>
        <source>Sound is off</source>
        <translation>Le son est coupé</translation>
    </message>
    <message>
        <source>Sound is on</source>
        <translation>Le son est activé</translation>
    </message>
    <message>
        <source>Let all timers be heard again</source>
        <translation>Rétablir le son de tous les minuteurs</translation>
    </message>
    <message>
        <source>Mute all timers</source>
        <translation>Couper le son de tous les minuteurs</translation>
    </message>
    <message>
        <source>A timer fills the screen</source>
        <translation>Un minuteur occupe tout l’écran</translation>
    </message>
</context>
<context>
    <name>WufferController</name>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Converter</source>
        <translation>Convertisseur</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>Mesures</translation>
    </message>
    <message>
        <source>Wuffer Help</source>
        <translation>Aide de Wuffer</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk" sourcelanguage="en">
<context>
    <name>AboutTab</name>
    <message>
        <source>Zarvil</source>
        <translation>Zarvil</translation>
    </message>
    <message>
        <source>Watches the power devices of this computer and shuts it down in order when the power fails.</source>
        <translation>Стежить за живленням цього комп’ютера і належно вимикає його, коли живлення зникає.</translation>
    </message>
    <message>
        <source>Opens the maker&apos;s web site</source>
        <translation>Відкриває сайт виробника</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Підтримка</translation>
    </message>
    <message>
        <source>Opens the support page</source>
        <translation>Відкриває сторінку підтримки</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>Надіслати відгук</translation>
    </message>
    <message>
        <source>Writes an e-mail to the makers</source>
        <translation>Створює лист до розробників</translation>
    </message>
    <message>
        <source>Follow us</source>
        <translation>Стежте за нами</translation>
    </message>
    <message>
        <source>Opens the maker&apos;s page on a social network</source>
        <translation>Відкриває сторінку виробника в соціальній мережі</translation>
    </message>
    <message>
        <source>Recommend Zarvil</source>
        <translation>Порадити Zarvil</translation>
    </message>
    <message>
        <source>Composes a post about Zarvil</source>
        <translation>Створює допис про Zarvil</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Оновлення</translation>
    </message>
    <message>
        <source>Check for updates auto&amp;matically</source>
        <translation>&amp;Автоматично шукати оновлення</translation>
    </message>
    <message>
        <source>The agent looks for new versions by itself</source>
        <translation>Агент сам шукає нові версії</translation>
    </message>
    <message>
        <source>Look for a new version now</source>
        <translation>Пошукати нову версію зараз</translation>
    </message>
    <message>
        <source>The result is shown by Zarvil.</source>
        <translation>Результат покаже Zarvil.</translation>
    </message>
    <message>
        <source>Check for &amp;Updates Now</source>
        <translation>Шукати &amp;оновлення</translation>
    </message>
    <message>
        <source>Asks the agent to look for a new version</source>
        <translation>Просить агента пошукати нову версію</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Обслуговування</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Журнал</translation>
    </message>
    <message>
        <source>What Zarvil has done and when.</source>
        <translation>Що і коли зробив Zarvil.</translation>
    </message>
    <message>
        <source>View &amp;Log</source>
        <translation>Показати &amp;журнал</translation>
    </message>
    <message>
        <source>Shows the agent&apos;s log</source>
        <translation>Показує журнал агента</translation>
    </message>
    <message>
        <source>Uninstall Zarvil</source>
        <translation>Видалення Zarvil</translation>
    </message>
    <message>
        <source>Removes Zarvil, this pane and the settings. Your scripts are kept.</source>
        <translation>Видаляє Zarvil, цю панель і налаштування. Ваші скрипти залишаться.</translation>
    </message>
    <message>
        <source>Un&amp;install…</source>
        <translation>&amp;Видалити…</translation>
    </message>
    <message>
        <source>Asks before anything is removed</source>
        <translation>Запитує, перш ніж щось видалити</translation>
    </message>
</context>
<context>
    <name>AlertsTab</name>
    <message>
        <source>E-mail</source>
        <translation>Електронна пошта</translation>
    </message>
    <message>
        <source>Send an &amp;e-mail when the power fails</source>
        <translation>Надсилати &amp;лист, коли зникає живлення</translation>
    </message>
    <message>
        <source>The agent sends the message</source>
        <translation>Повідомлення надсилає агент</translation>
    </message>
    <message>
        <source>Add&amp;ress</source>
        <translation>&amp;Адреса</translation>
    </message>
    <message>
        <source>Press Return to store the address. Only a complete address is stored.</source>
        <translation>Натисніть Enter, щоб зберегти адресу. Зберігається лише повна адреса.</translation>
    </message>
    <message>
        <source>name@example.org</source>
        <translation>name@example.org</translation>
    </message>
    <message>
        <source>Pushover</source>
        <translation>Pushover</translation>
    </message>
    <message>
        <source>What is Pushover?</source>
        <translation>Що таке Pushover?</translation>
    </message>
    <message>
        <source>Opens the Pushover web site</source>
        <translation>Відкриває сайт Pushover</translation>
    </message>
    <message>
        <source>Send a &amp;push notification when the power fails</source>
        <translation>Надсилати push-сповіщення, коли зникає &amp;живлення</translation>
    </message>
    <message>
        <source>Pushover delivers notifications to your phone</source>
        <translation>Pushover доставляє сповіщення на ваш телефон</translation>
    </message>
    <message>
        <source>To your phone, through the Pushover service.</source>
        <translation>На ваш телефон через службу Pushover.</translation>
    </message>
    <message>
        <source>&amp;User ID</source>
        <translation>ID кор&amp;истувача</translation>
    </message>
    <message>
        <source>Your Pushover user key. Press Return to store it.</source>
        <translation>Ваш ключ користувача Pushover. Натисніть Enter, щоб зберегти його.</translation>
    </message>
    <message>
        <source>Pushover user ID</source>
        <translation>ID користувача Pushover</translation>
    </message>
    <message>
        <source>De&amp;vice ID</source>
        <translation>ID пристро&amp;ю</translation>
    </message>
    <message>
        <source>Name of one of your devices; leave it empty for all. Press Return to store it.</source>
        <translation>Назва одного з ваших пристроїв; залиште порожнім для всіх. Натисніть Enter, щоб зберегти.</translation>
    </message>
    <message>
        <source>All devices</source>
        <translation>Усі пристрої</translation>
    </message>
    <message>
        <source>Pushover device ID</source>
        <translation>ID пристрою Pushover</translation>
    </message>
    <message>
        <source>Leave it empty to reach all your devices.</source>
        <translation>Залиште порожнім, щоб сповіщати всі ваші пристрої.</translation>
    </message>
    <message>
        <source>Send a &amp;Test</source>
        <translation>Надіслати &amp;тест</translation>
    </message>
    <message>
        <source>Sends a test notification and shows whether the IDs are right</source>
        <translation>Надсилає тестове сповіщення і показує, чи правильні ID</translation>
    </message>
    <message>
        <source>Check under way</source>
        <translation>Триває перевірка</translation>
    </message>
</context>
<context>
    <name>Bundle</name>
    <message>
        <source>&quot;%1&quot; is not a preference pane: its Contents/Info.json cannot be read.</source>
        <translation>«%1» не є панеллю налаштувань: не вдається прочитати Contents/Info.json.</translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; is broken: Contents/Info.json is not valid JSON at byte %2 (%3).</source>
        <translation>Панель налаштувань «%1» пошкоджено: Contents/Info.json не є коректним JSON у байті %2 (%3).</translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; is broken: Contents/Info.json does not hold an object.</source>
        <translation>Панель налаштувань «%1» пошкоджено: Contents/Info.json не містить об’єкта.</translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; is broken: the text &quot;%2&quot; is missing in Contents/Info.json.</source>
        <translation>Панель налаштувань «%1» пошкоджено: у Contents/Info.json немає тексту «%2».</translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; does not exist.</source>
        <translation>Панелі налаштувань «%1» не існує.</translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; is broken: its library &quot;%2&quot; is missing.</source>
        <translation>Панель налаштувань «%1» пошкоджено: немає її бібліотеки «%2».</translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; was made for another program: its library offers &quot;%2&quot; instead of &quot;%3&quot;.</source>
        <translation>Панель налаштувань «%1» створено для іншої програми: її бібліотека пропонує «%2» замість «%3».</translation>
    </message>
    <message>
        <source>The library of the preference pane &quot;%1&quot; cannot be loaded: %2</source>
        <translation>Не вдається завантажити бібліотеку панелі налаштувань «%1»: %2</translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; is broken: its library offers the class &quot;%2&quot; instead of &quot;%3&quot;.</source>
        <translation>Панель налаштувань «%1» пошкоджено: її бібліотека пропонує клас «%2» замість «%3».</translation>
    </message>
</context>
<context>
    <name>DevicesTab</name>
    <message>
        <source>Tick a device to have Zarvil watch it. Untick it to stop.</source>
        <translation>Позначте пристрій, щоб Zarvil стежив за ним. Зніміть позначку, щоб припинити.</translation>
    </message>
    <message>
        <source>&amp;Connected</source>
        <translation>Під’&amp;єднані</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Під’єднані</translation>
    </message>
    <message>
        <source>&amp;Watched</source>
        <translation>Під &amp;наглядом</translation>
    </message>
    <message>
        <source>Watched</source>
        <translation>Під наглядом</translation>
    </message>
</context>
<context>
    <name>GeneralTab</name>
    <message>
        <source>Shutdown</source>
        <translation>Вимкнення</translation>
    </message>
    <message>
        <source>Shut down a&amp;fter</source>
        <translation>&amp;Вимкнути через</translation>
    </message>
    <message>
        <source>How long to wait after a power failure before shutting down. Press Return to store it.</source>
        <translation>Скільки чекати після зникнення живлення, перш ніж вимкнути комп’ютер. Натисніть Enter, щоб зберегти.</translation>
    </message>
    <message>
        <source>Shutdown delay</source>
        <translation>Затримка вимкнення</translation>
    </message>
    <message>
        <source>Shows the delay in minutes or in seconds</source>
        <translation>Показує затримку в хвилинах або в секундах</translation>
    </message>
    <message>
        <source>Delay in minutes</source>
        <translation>Затримка в хвилинах</translation>
    </message>
    <message>
        <source>&amp;Quit applications by force</source>
        <translation>При&amp;мусово завершувати програми</translation>
    </message>
    <message>
        <source>Ends applications that do not quit by themselves; unsaved changes in them are lost</source>
        <translation>Завершує програми, які не закрилися самі; незбережені в них зміни буде втрачено</translation>
    </message>
    <message>
        <source>Unsaved changes in them are lost.</source>
        <translation>Незбережені в них зміни буде втрачено.</translation>
    </message>
    <message>
        <source>Test the shutdown</source>
        <translation>Перевірка вимкнення</translation>
    </message>
    <message>
        <source>Test under way</source>
        <translation>Триває перевірка</translation>
    </message>
    <message>
        <source>&amp;Test Shutdown</source>
        <translation>П&amp;еревірити</translation>
    </message>
    <message>
        <source>Plays the shutdown sequence without shutting down</source>
        <translation>Програє послідовність вимкнення, не вимикаючи комп’ютер</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Повідомлення</translation>
    </message>
    <message>
        <source>&amp;Warn me before shutting down</source>
        <translation>Поперед&amp;жати перед вимкненням</translation>
    </message>
    <message>
        <source>Shows a message with a countdown when the power has failed</source>
        <translation>Показує повідомлення зі зворотним відліком, коли зникло живлення</translation>
    </message>
    <message>
        <source>A message counts down to the shutdown.</source>
        <translation>Повідомлення відлічує час до вимкнення.</translation>
    </message>
    <message>
        <source>The message hides itself</source>
        <translation>Повідомлення ховається саме</translation>
    </message>
    <message>
        <source>Shown as the agent has it; it is set in the shutdown message itself.</source>
        <translation>Показано так, як у агента; змінюється в самому повідомленні про вимкнення.</translation>
    </message>
    <message>
        <source>Set in the message itself. The countdown goes on when it is hidden.</source>
        <translation>Змінюється в самому повідомленні. Відлік триває, навіть коли його сховано.</translation>
    </message>
    <message>
        <source>&amp;Notify me when the power fails</source>
        <translation>Сповіщати пр&amp;о зникнення живлення</translation>
    </message>
    <message>
        <source>Shows a desktop notification at the moment of a power failure</source>
        <translation>Показує сповіщення в мить зникнення живлення</translation>
    </message>
    <message>
        <source>A desktop notification at the moment of the failure.</source>
        <translation>Сповіщення на стільниці в мить зникнення живлення.</translation>
    </message>
    <message>
        <source>Tell me when a device is &amp;connected</source>
        <translation>Повідомл&amp;яти про під’єднання пристрою</translation>
    </message>
    <message>
        <source>Shows a message when a power device is plugged in</source>
        <translation>Показує повідомлення, коли під’єднують пристрій живлення</translation>
    </message>
    <message>
        <source>The message goes away by itself.</source>
        <translation>Повідомлення зникне саме.</translation>
    </message>
    <message>
        <source>Startup and status icon</source>
        <translation>Запуск і значок стану</translation>
    </message>
    <message>
        <source>&amp;Launch Zarvil at login</source>
        <translation>Зап&amp;ускати Zarvil під час входу</translation>
    </message>
    <message>
        <source>Starts the agent whenever you log in</source>
        <translation>Запускає агента під час кожного входу в систему</translation>
    </message>
    <message>
        <source>Protection starts as soon as you log in.</source>
        <translation>Захист починається, щойно ви ввійдете в систему.</translation>
    </message>
    <message>
        <source>Show Zarvil &amp;in the status bar</source>
        <translation>Показувати Zarvil на панелі с&amp;тану</translation>
    </message>
    <message>
        <source>Shows an icon of the agent in the status bar</source>
        <translation>Показує значок агента на панелі стану</translation>
    </message>
    <message>
        <source>&amp;Monochrome icon</source>
        <translation>О&amp;дноколірний значок</translation>
    </message>
    <message>
        <source>Draws the status-bar icon in one color</source>
        <translation>Малює значок на панелі стану одним кольором</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>Preferences</source>
        <translation>Налаштування</translation>
    </message>
    <message>
        <source>There is no preference pane in &quot;%1&quot; and none in &quot;%2&quot;.</source>
        <translation>Панелей налаштувань немає ні в «%1», ні в «%2».</translation>
    </message>
    <message>
        <source>The preferences are open already, but their window does not answer.</source>
        <translation>Налаштування вже відкрито, але їхнє вікно не відповідає.</translation>
    </message>
</context>
<context>
    <name>MainBundle</name>
    <message numerus="yes">
        <source>%n devices watched</source>
        <translation>
            <numerusform>%n пристрій під наглядом</numerusform>
            <numerusform>%n пристрої під наглядом</numerusform>
            <numerusform>%n пристроїв під наглядом</numerusform>
        </translation>
    </message>
    <message>
        <source>A test is running. Nothing is shut down.</source>
        <translation>Триває перевірка. Нічого не вимикається.</translation>
    </message>
    <message>
        <source>Administrator rights: checking</source>
        <translation>Права адміністратора: перевірка</translation>
    </message>
    <message>
        <source>Administrator rights: locked</source>
        <translation>Права адміністратора: заблоковано</translation>
    </message>
    <message>
        <source>Administrator rights: unlocked</source>
        <translation>Права адміністратора: розблоковано</translation>
    </message>
    <message>
        <source>Can&apos;t execute empty script!</source>
        <translation>Неможливо виконати порожній скрипт!</translation>
    </message>
    <message>
        <source>Cannot be changed while the warning hides itself.</source>
        <translation>Не можна змінити, поки попередження ховається саме.</translation>
    </message>
    <message>
        <source>Connect a power supply with a data cable. It appears here by itself.</source>
        <translation>Під’єднайте джерело живлення кабелем даних. Воно з’явиться тут само.</translation>
    </message>
    <message>
        <source>Connection timeout! Check your Internet connection!</source>
        <translation>Час очікування з’єднання вичерпано! Перевірте підключення до Інтернету!</translation>
    </message>
    <message>
        <source>Delete this script and its file at once. This cannot be undone.</source>
        <translation>Одразу видаляє цей скрипт і його файл. Скасувати це не можна.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Редагувати</translation>
    </message>
    <message>
        <source>Edit the title and the text in place.</source>
        <translation>Редагувати назву й текст на місці.</translation>
    </message>
    <message>
        <source>Edit “%1”</source>
        <translation>Редагувати «%1»</translation>
    </message>
    <message>
        <source>Editing. Done saves the title and the text.</source>
        <translation>Редагування. «Готово» зберігає назву й текст.</translation>
    </message>
    <message>
        <source>Failed with exit status %1: %2</source>
        <translation>Помилка, код завершення %1: %2</translation>
    </message>
    <message>
        <source>Invalid settings! Check your User ID and Device ID(if any)</source>
        <translation>Неправильні налаштування! Перевірте ID користувача та ID пристрою (якщо є)</translation>
    </message>
    <message>
        <source>Launch it to see your devices and change the settings.</source>
        <translation>Запустіть його, щоб бачити пристрої та змінювати налаштування.</translation>
    </message>
    <message>
        <source>Launching it…</source>
        <translation>Запускається…</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Заблоковано</translation>
    </message>
    <message>
        <source>Looking for Zarvil…</source>
        <translation>Пошук Zarvil…</translation>
    </message>
    <message>
        <source>Minutes from the power failure. Return stores the number.</source>
        <translation>Хвилини від зникнення живлення. Enter зберігає число.</translation>
    </message>
    <message>
        <source>No device connected</source>
        <translation>Немає під’єднаних пристроїв</translation>
    </message>
    <message>
        <source>No device is watched, so a power failure goes unnoticed.</source>
        <translation>Жоден пристрій не під наглядом, тож зникнення живлення залишиться непоміченим.</translation>
    </message>
    <message>
        <source>No device watched</source>
        <translation>Немає пристроїв під наглядом</translation>
    </message>
    <message>
        <source>No devices to show</source>
        <translation>Немає пристроїв для показу</translation>
    </message>
    <message>
        <source>No scripts to show</source>
        <translation>Немає скриптів для показу</translation>
    </message>
    <message>
        <source>No scripts yet</source>
        <translation>Скриптів ще немає</translation>
    </message>
    <message>
        <source>No serial number</source>
        <translation>Без серійного номера</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Не збережено</translation>
    </message>
    <message>
        <source>Not stored while Zarvil is not running.</source>
        <translation>Не зберігається, поки Zarvil не запущено.</translation>
    </message>
    <message>
        <source>Nothing happens when the power fails.</source>
        <translation>Коли зникне живлення, нічого не відбудеться.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Гаразд</translation>
    </message>
    <message>
        <source>Only a number of 0 or more is taken, such as %1. The delay stays as it was.</source>
        <translation>Приймається лише число від 0, наприклад %1. Затримка залишається незмінною.</translation>
    </message>
    <message>
        <source>Plays the whole sequence without shutting down.</source>
        <translation>Програє всю послідовність, не вимикаючи комп’ютер.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Видалити</translation>
    </message>
    <message>
        <source>Remove “%1”</source>
        <translation>Видалити «%1»</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Виконати</translation>
    </message>
    <message>
        <source>Run this script once, now. The window waits until it has ended.</source>
        <translation>Виконує цей скрипт один раз, зараз. Вікно чекає, доки він завершиться.</translation>
    </message>
    <message>
        <source>Run “%1”</source>
        <translation>Виконати «%1»</translation>
    </message>
    <message>
        <source>Running…</source>
        <translation>Виконується…</translation>
    </message>
    <message>
        <source>Save the title and the text.</source>
        <translation>Зберегти назву й текст.</translation>
    </message>
    <message>
        <source>Save “%1”</source>
        <translation>Зберегти «%1»</translation>
    </message>
    <message>
        <source>Script “%1”</source>
        <translation>Скрипт «%1»</translation>
    </message>
    <message>
        <source>Scripts are off</source>
        <translation>Скрипти вимкнено</translation>
    </message>
    <message>
        <source>Seconds from the power failure. Return stores the number.</source>
        <translation>Секунди від зникнення живлення. Enter зберігає число.</translation>
    </message>
    <message>
        <source>Settings are valid!</source>
        <translation>Налаштування правильні!</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Зупинити</translation>
    </message>
    <message>
        <source>Stored with Return, once it is complete and ends in two to four letters.</source>
        <translation>Зберігається клавішею Enter, коли адреса повна й закінчується двома–чотирма літерами.</translation>
    </message>
    <message>
        <source>Switch the protection on to test it.</source>
        <translation>Увімкніть захист, щоб перевірити його.</translation>
    </message>
    <message>
        <source>Text of the script</source>
        <translation>Текст скрипту</translation>
    </message>
    <message>
        <source>The operation could not be completed.</source>
        <translation>Не вдалося завершити дію.</translation>
    </message>
    <message>
        <source>The session bus does not answer, so Zarvil cannot be reached.</source>
        <translation>Шина сеансу не відповідає, тож Zarvil недоступний.</translation>
    </message>
    <message>
        <source>The test has ended. Nothing was shut down.</source>
        <translation>Перевірку завершено. Нічого не було вимкнено.</translation>
    </message>
    <message>
        <source>There is a script of this title already.</source>
        <translation>Скрипт із такою назвою вже є.</translation>
    </message>
    <message>
        <source>They are kept. Switch them on to see them.</source>
        <translation>Їх збережено. Увімкніть їх, щоб побачити.</translation>
    </message>
    <message>
        <source>This script is empty. Edit it before you run it.</source>
        <translation>Цей скрипт порожній. Відредагуйте його, перш ніж виконувати.</translation>
    </message>
    <message>
        <source>This script is too large to be edited here (%1). Its text stays as it is; its title can be changed.</source>
        <translation>Цей скрипт завеликий, щоб редагувати його тут (%1). Його текст залишиться без змін; назву можна змінити.</translation>
    </message>
    <message>
        <source>This system has no authority that could unlock it.</source>
        <translation>У цій системі немає служби, яка могла б його розблокувати.</translation>
    </message>
    <message>
        <source>Tick a connected device. Until then a power failure goes unnoticed.</source>
        <translation>Позначте під’єднаний пристрій. Доти зникнення живлення лишатиметься непоміченим.</translation>
    </message>
    <message>
        <source>Title of the script</source>
        <translation>Назва скрипту</translation>
    </message>
    <message>
        <source>Type a title above to create the first one.</source>
        <translation>Введіть назву вгорі, щоб створити перший.</translation>
    </message>
    <message>
        <source>Unknow error!</source>
        <translation>Невідома помилка!</translation>
    </message>
    <message>
        <source>Unlocked</source>
        <translation>Розблоковано</translation>
    </message>
    <message>
        <source>Unnamed device</source>
        <translation>Пристрій без назви</translation>
    </message>
    <message>
        <source>Your devices are listed here while Zarvil runs.</source>
        <translation>Ваші пристрої показано тут, коли Zarvil запущено.</translation>
    </message>
    <message>
        <source>Your scripts are listed here while Zarvil runs.</source>
        <translation>Ваші скрипти показано тут, коли Zarvil запущено.</translation>
    </message>
    <message>
        <source>Zarvil is not installed.</source>
        <translation>Zarvil не встановлено.</translation>
    </message>
    <message>
        <source>minutes</source>
        <translation>хвилини</translation>
    </message>
    <message>
        <source>not needed for any setting here</source>
        <translation>не потрібні для жодного налаштування тут</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>секунди</translation>
    </message>
    <message numerus="yes">
        <source>shuts down after %n minutes</source>
        <translation>
            <numerusform>вимкнення через %n хвилину</numerusform>
            <numerusform>вимкнення через %n хвилини</numerusform>
            <numerusform>вимкнення через %n хвилин</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>shuts down after %n seconds</source>
        <translation>
            <numerusform>вимкнення через %n секунду</numerusform>
            <numerusform>вимкнення через %n секунди</numerusform>
            <numerusform>вимкнення через %n секунд</numerusform>
        </translation>
    </message>
    <message>
        <source>shuts down at once</source>
        <translation>вимкнення одразу</translation>
    </message>
    <message>
        <source>The script “%1” is running.</source>
        <translation>Виконується скрипт «%1».</translation>
    </message>
    <message>
        <source>Administrator rights</source>
        <translation>Права адміністратора</translation>
    </message>
    <message>
        <source>Alerts by e-mail</source>
        <translation>Сповіщення електронною поштою</translation>
    </message>
    <message>
        <source>Alerts through Pushover</source>
        <translation>Сповіщення через Pushover</translation>
    </message>
    <message>
        <source>An alert reaches you only if your router and modem still have power, so connect them to the power supply too.</source>
        <translation>Сповіщення дійде, лише якщо маршрутизатор і модем ще мають живлення, тож під’єднайте до джерела живлення і їх.</translation>
    </message>
    <message>
        <source>Applications that ask whether to save can hold a shutdown up until the battery is empty. By force they are ended without asking, and what was not saved is lost.</source>
        <translation>Програми, які запитують про збереження, можуть затримати вимкнення, доки батарея не розрядиться. Примусово їх завершують без запитань, а незбережене втрачається.</translation>
    </message>
    <message>
        <source>Asks first, then removes Zarvil, this pane and the settings. Your scripts are kept.</source>
        <translation>Спершу запитує, а тоді видаляє Zarvil, цю панель і налаштування. Ваші скрипти залишаться.</translation>
    </message>
    <message>
        <source>Choosing devices</source>
        <translation>Вибір пристроїв</translation>
    </message>
    <message>
        <source>Connect a power supply with its data cable. It appears under Connected. Tick it, and it moves to Watched. Untick it, and Zarvil no longer watches it.</source>
        <translation>Під’єднайте джерело живлення його кабелем даних. Воно з’явиться в списку «Під’єднані». Позначте його, і воно перейде до списку «Під наглядом». Зніміть позначку, і Zarvil більше не стежитиме за ним.</translation>
    </message>
    <message>
        <source>Devices are listed while Zarvil runs. Launch it with the button above the tabs. A power supply without a data cable cannot be watched.</source>
        <translation>Пристрої показано, коли Zarvil запущено. Запустіть його кнопкою над вкладками. За джерелом живлення без кабелю даних стежити неможливо.</translation>
    </message>
    <message>
        <source>Each script is a file of its own in the folder %1, named after its title with the ending .zvscript. Copy that folder to keep them safe.</source>
        <translation>Кожен скрипт — окремий файл у теці %1, названий за його назвою із закінченням .zvscript. Скопіюйте цю теку, щоб зберегти їх.</translation>
    </message>
    <message>
        <source>Ends applications that do not quit by themselves, so that none of them can hold the shutdown up. What was not saved in them is lost.</source>
        <translation>Завершує програми, які не закрилися самі, щоб жодна не затримала вимкнення. Незбережене в них втрачається.</translation>
    </message>
    <message>
        <source>Goes through the shutdown as if the power had failed, and stops before the computer would be shut down.</source>
        <translation>Проходить вимкнення так, ніби живлення зникло, і зупиняється, перш ніж вимкнути комп’ютер.</translation>
    </message>
    <message>
        <source>Help: About</source>
        <translation>Довідка: Про програму</translation>
    </message>
    <message>
        <source>Help: Alerts</source>
        <translation>Довідка: Сповіщення</translation>
    </message>
    <message>
        <source>Help: Devices</source>
        <translation>Довідка: Пристрої</translation>
    </message>
    <message>
        <source>Help: General</source>
        <translation>Довідка: Загальні</translation>
    </message>
    <message>
        <source>Help: Scripts</source>
        <translation>Довідка: Скрипти</translation>
    </message>
    <message>
        <source>If no device appears</source>
        <translation>Якщо пристрою не видно</translation>
    </message>
    <message>
        <source>If the protection is off</source>
        <translation>Якщо захист вимкнено</translation>
    </message>
    <message>
        <source>Keep the network up</source>
        <translation>Зберегти роботу мережі</translation>
    </message>
    <message>
        <source>New versions</source>
        <translation>Нові версії</translation>
    </message>
    <message>
        <source>Pushover is a service that brings messages to your phone. You need an account there; its user ID goes into the first field. With a device ID only that device gets the message, otherwise all of yours.</source>
        <translation>Pushover — служба, яка доставляє повідомлення на ваш телефон. Потрібен обліковий запис у ній; його ID користувача введіть у перше поле. З ID пристрою повідомлення отримає лише цей пристрій, інакше — усі ваші.</translation>
    </message>
    <message>
        <source>Quitting applications by force</source>
        <translation>Примусове завершення програм</translation>
    </message>
    <message>
        <source>Removes Zarvil, this pane and the settings, after it has asked you. Your scripts stay in the folder %1.</source>
        <translation>Видаляє Zarvil, цю панель і налаштування після вашого підтвердження. Ваші скрипти залишаться в теці %1.</translation>
    </message>
    <message>
        <source>Run starts the script at once, without a power failure, and does all that it says. If it fails, its exit status and its last error are shown.</source>
        <translation>«Виконати» одразу запускає скрипт, без зникнення живлення, і робить усе, що в ньому написано. У разі помилки показано код завершення та останнє повідомлення про помилку.</translation>
    </message>
    <message>
        <source>Send a Test sends a message at once and tells you whether it went out. IDs that Pushover does not know are cleared and have to be typed again.</source>
        <translation>«Надіслати тест» одразу надсилає повідомлення і каже, чи воно пішло. ID, яких Pushover не знає, стираються, і їх треба ввести знову.</translation>
    </message>
    <message>
        <source>Shows the delay in minutes or in seconds. The delay itself stays the same.</source>
        <translation>Показує затримку в хвилинах або в секундах. Сама затримка не змінюється.</translation>
    </message>
    <message>
        <source>Shows whether the warning hides itself. You choose that in the warning, so it cannot be changed here.</source>
        <translation>Показує, чи ховається попередження саме. Це вибирають у попередженні, тож тут змінити не можна.</translation>
    </message>
    <message>
        <source>Shows whether your account may administer this computer. No setting here needs the lock to be open.</source>
        <translation>Показує, чи може ваш обліковий запис керувати цим комп’ютером. Жодне з налаштувань тут не потребує відкритого замка.</translation>
    </message>
    <message>
        <source>Starts Zarvil, the program that watches the power, or ends it. While it does not run, nothing is watched and no setting can be changed.</source>
        <translation>Запускає або завершує Zarvil — програму, яка стежить за живленням. Поки її не запущено, нагляду немає і жодного налаштування змінити не можна.</translation>
    </message>
    <message>
        <source>Switches the protection. While it is off, Zarvil does nothing when the power fails. The choice takes effect at once.</source>
        <translation>Вмикає або вимикає захист. Поки його вимкнено, Zarvil нічого не робить, коли зникає живлення. Вибір діє одразу.</translation>
    </message>
    <message>
        <source>The delay</source>
        <translation>Затримка</translation>
    </message>
    <message>
        <source>The key of your account at Pushover. You find it on Pushover&apos;s page once you have logged in.</source>
        <translation>Ключ вашого облікового запису Pushover. Його видно на сторінці Pushover після входу.</translation>
    </message>
    <message>
        <source>The lock below the tabs shows whether your account may administer this computer. No setting here needs it to be open.</source>
        <translation>Замок під вкладками показує, чи може ваш обліковий запис керувати цим комп’ютером. Жодне з налаштувань тут не потребує, щоб його було відкрито.</translation>
    </message>
    <message>
        <source>The log</source>
        <translation>Журнал</translation>
    </message>
    <message>
        <source>The name of one of your devices at Pushover. Leave it empty, and all of them get the message.</source>
        <translation>Назва одного з ваших пристроїв у Pushover. Залиште порожнім, і повідомлення отримають усі.</translation>
    </message>
    <message>
        <source>The time between the power failure and the shutdown. Numbers of 0 or more are stored with Return; anything else leaves the last value as it is.</source>
        <translation>Час між зникненням живлення і вимкненням. Числа від 0 зберігаються клавішею Enter; усе інше залишає останнє значення без змін.</translation>
    </message>
    <message>
        <source>The title of a new script. It becomes the name of the script&apos;s file, so that no two scripts can have the same one.</source>
        <translation>Назва нового скрипту. Вона стає іменем його файлу, тож двох скриптів з однаковою назвою бути не може.</translation>
    </message>
    <message>
        <source>This much time passes between the power failure and the shutdown. Choose seconds or minutes with the switch, type a number and press Return. With 0 the computer is shut down at once.</source>
        <translation>Стільки часу минає між зникненням живлення і вимкненням. Виберіть перемикачем секунди або хвилини, введіть число і натисніть Enter. Якщо 0, комп’ютер вимикається одразу.</translation>
    </message>
    <message>
        <source>Trying Pushover out</source>
        <translation>Перевірка Pushover</translation>
    </message>
    <message>
        <source>Trying a script out</source>
        <translation>Перевірка скрипту</translation>
    </message>
    <message>
        <source>Type a title, press Create, then Edit. A text that begins with #! is run by the program named in that line, any other by the shell. Done saves it.</source>
        <translation>Введіть назву, натисніть «Створити», потім «Редагувати». Текст, що починається з #!, виконує програма, названа в цьому рядку, будь-який інший — оболонка. «Готово» зберігає його.</translation>
    </message>
    <message>
        <source>Uninstalling Zarvil</source>
        <translation>Видалення Zarvil</translation>
    </message>
    <message>
        <source>What a test does</source>
        <translation>Що робить перевірка</translation>
    </message>
    <message>
        <source>What happens when the power fails</source>
        <translation>Що відбувається, коли зникає живлення</translation>
    </message>
    <message>
        <source>What scripts are for</source>
        <translation>Для чого потрібні скрипти</translation>
    </message>
    <message>
        <source>When a watched device reports a power failure, Zarvil warns you, runs your scripts, sends the alerts that you have chosen and, after the delay, shuts the computer down. You choose each of these in the other tabs.</source>
        <translation>Коли пристрій під наглядом повідомляє про зникнення живлення, Zarvil попереджає вас, виконує ваші скрипти, надсилає вибрані сповіщення і після затримки вимикає комп’ютер. Усе це вибирають на інших вкладках.</translation>
    </message>
    <message>
        <source>Where scripts lie</source>
        <translation>Де лежать скрипти</translation>
    </message>
    <message>
        <source>Writing a script</source>
        <translation>Написання скрипту</translation>
    </message>
    <message>
        <source>Zarvil goes on running and shows your devices, but does nothing when the power fails. Switch it on with the switch at the top.</source>
        <translation>Zarvil працює далі й показує ваші пристрої, але нічого не робить, коли зникає живлення. Увімкніть захист перемикачем угорі.</translation>
    </message>
    <message>
        <source>Zarvil goes through the shutdown as if the power had failed, and stops before the computer would be shut down. The protection must be on for a test.</source>
        <translation>Zarvil проходить вимкнення так, ніби живлення зникло, і зупиняється, перш ніж вимкнути комп’ютер. Для перевірки захист має бути ввімкнено.</translation>
    </message>
    <message>
        <source>Zarvil looks for new versions itself, at your word or by itself, and tells you what it has found.</source>
        <translation>Zarvil сам шукає нові версії, на ваш запит або автоматично, і каже, що знайшов.</translation>
    </message>
    <message>
        <source>Zarvil runs them when the power fails, before it shuts the computer down: to save your work, for example, or to stop a server in order.</source>
        <translation>Zarvil виконує їх, коли зникає живлення, перш ніж вимкнути комп’ютер: наприклад, щоб зберегти вашу роботу або належно зупинити сервер.</translation>
    </message>
    <message>
        <source>Zarvil sends a message to the address when the power fails. Type the whole address and press Return; an incomplete one is not stored.</source>
        <translation>Zarvil надсилає повідомлення на цю адресу, коли зникає живлення. Введіть повну адресу й натисніть Enter; неповна не зберігається.</translation>
    </message>
    <message>
        <source>Zarvil writes down what it does and when: power failures, shutdowns and alerts. Look there first if something went otherwise than you expected.</source>
        <translation>Zarvil записує, що і коли робить: зникнення живлення, вимкнення та сповіщення. Перегляньте журнал насамперед, якщо щось пішло не так, як ви очікували.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>Cancel editing “%1”</source>
        <translation>Скасувати редагування «%1»</translation>
    </message>
    <message>
        <source>End editing without saving. Esc leads here.</source>
        <translation>Завершує редагування без збереження. Те саме робить Esc.</translation>
    </message>
    <message>
        <source>Connected: %1</source>
        <translation>Під’єднано: %1</translation>
    </message>
    <message>
        <source>Disconnected: %1</source>
        <translation>Від’єднано: %1</translation>
    </message>
    <message>
        <source>Could not create the folder “%1”: %2.</source>
        <translation>Не вдалося створити теку «%1»: %2.</translation>
    </message>
    <message>
        <source>Could not prepare the script for running: %1.</source>
        <translation>Не вдалося підготувати скрипт до виконання: %1.</translation>
    </message>
    <message>
        <source>Could not remove “%1”: %2.</source>
        <translation>Не вдалося вилучити «%1»: %2.</translation>
    </message>
    <message>
        <source>Could not save the file “%1”: %2.</source>
        <translation>Не вдалося зберегти файл «%1»: %2.</translation>
    </message>
    <message>
        <source>Could not start the script&apos;s interpreter “%1”: %2.</source>
        <translation>Не вдалося запустити інтерпретатор скрипту «%1»: %2.</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>Хв</translation>
    </message>
    <message>
        <source>Sec</source>
        <translation>Сек</translation>
    </message>
    <message>
        <source>Signal %1 (%2) ended the script.</source>
        <translation>Сигнал %1 (%2) завершив скрипт.</translation>
    </message>
    <message>
        <source>Signal %1 ended the script.</source>
        <translation>Сигнал %1 завершив скрипт.</translation>
    </message>
    <message>
        <source>The script contains a NUL character, so it cannot be run.</source>
        <translation>Скрипт містить символ NUL, тому його не можна виконати.</translation>
    </message>
    <message>
        <source>The script failed with exit status %1 and gave no reason.</source>
        <translation>Скрипт завершився помилкою зі станом %1 і не назвав причини.</translation>
    </message>
    <message>
        <source>The script has ended, but its result got lost.</source>
        <translation>Скрипт завершився, але його результат утрачено.</translation>
    </message>
    <message>
        <source>a part of its path is not a folder</source>
        <translation>частина шляху не є текою</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>це тека</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>це не звичайний файл</translation>
    </message>
    <message>
        <source>it would be larger than files may be here</source>
        <translation>він був би більшим, ніж тут дозволено</translation>
    </message>
    <message>
        <source>its name contains a character that is not allowed</source>
        <translation>назва містить недозволений символ</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation>назва задовга</translation>
    </message>
    <message>
        <source>its symbolic links lead in a circle</source>
        <translation>символічні посилання ведуть по колу</translation>
    </message>
    <message>
        <source>something of that name is already there</source>
        <translation>тут уже є щось із такою назвою</translation>
    </message>
    <message>
        <source>the disk can only be read</source>
        <translation>диск доступний лише для читання</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>диск заповнено</translation>
    </message>
    <message>
        <source>the disk reported a fault</source>
        <translation>диск повідомив про помилку</translation>
    </message>
    <message>
        <source>there is no such file or folder</source>
        <translation>такого файлу чи теки немає</translation>
    </message>
    <message>
        <source>too many files are open</source>
        <translation>відкрито забагато файлів</translation>
    </message>
    <message>
        <source>you do not have permission</source>
        <translation>у вас немає дозволу</translation>
    </message>
    <message>
        <source>your share of the disk is used up</source>
        <translation>вашу квоту на диску вичерпано</translation>
    </message>
    <message>
        <source>Ended without an error.</source>
        <translation>Завершено без помилок.</translation>
    </message>
    <message>
        <source>Administrator rights: %1 missing</source>
        <translation>Права адміністратора: немає %1</translation>
    </message>
</context>
<context>
    <name>PaneView</name>
    <message>
        <source>Zarvil</source>
        <translation>Zarvil</translation>
    </message>
    <message>
        <source>Protection is on</source>
        <translation>Захист увімкнено</translation>
    </message>
    <message>
        <source>Protection is off</source>
        <translation>Захист вимкнено</translation>
    </message>
    <message>
        <source>Looking for Zarvil</source>
        <translation>Пошук Zarvil</translation>
    </message>
    <message>
        <source>Choose devices</source>
        <translation>Вибрати пристрої</translation>
    </message>
    <message>
        <source>Shows the tab where you choose the devices to watch</source>
        <translation>Показує вкладку, де вибирають пристрої для нагляду</translation>
    </message>
    <message>
        <source>Switches the power-failure protection on or off</source>
        <translation>Вмикає або вимикає захист від зникнення живлення</translation>
    </message>
    <message>
        <source>Power protection</source>
        <translation>Захист живлення</translation>
    </message>
    <message>
        <source>Launching Zarvil</source>
        <translation>Запуск Zarvil</translation>
    </message>
    <message>
        <source>Zarvil is running</source>
        <translation>Zarvil працює</translation>
    </message>
    <message>
        <source>Zarvil is not running</source>
        <translation>Zarvil не запущено</translation>
    </message>
    <message>
        <source>Launch Zarvil</source>
        <translation>Запустити Zarvil</translation>
    </message>
    <message>
        <source>Starts or quits the background agent that watches the power</source>
        <translation>Запускає або завершує фонового агента, який стежить за живленням</translation>
    </message>
    <message>
        <source>&amp;Devices</source>
        <translation>&amp;Пристрої</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>&amp;Загальні</translation>
    </message>
    <message>
        <source>&amp;Alerts</source>
        <translation>&amp;Сповіщення</translation>
    </message>
    <message>
        <source>&amp;Scripts</source>
        <translation>С&amp;крипти</translation>
    </message>
    <message>
        <source>A&amp;bout</source>
        <translation>П&amp;ро програму</translation>
    </message>
    <message>
        <source>Administrator rights</source>
        <translation>Права адміністратора</translation>
    </message>
    <message>
        <source>Shows whether this account may administer the computer. No setting of this pane needs the lock to be open.</source>
        <translation>Показує, чи може цей обліковий запис керувати комп’ютером. Жодне з налаштувань тут не потребує відкритого замка.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Довідка</translation>
    </message>
    <message>
        <source>Explains this tab (F1)</source>
        <translation>Пояснює цю вкладку (F1)</translation>
    </message>
    <message>
        <source>o</source>
        <comment>The letter of the title “Protection is on” or “off” that is its access key; - for none</comment>
        <translation>х</translation>
    </message>
</context>
<context>
    <name>PolkitAuthorization</name>
    <message>
        <source>Administrator rights cannot be checked: the authorization service (polkit) is not available.</source>
        <translation>Не вдається перевірити права адміністратора: служба авторизації (polkit) недоступна.</translation>
    </message>
    <message>
        <source>The authentication was cancelled.</source>
        <translation>Автентифікацію скасовано.</translation>
    </message>
    <message>
        <source>Administrator rights cannot be checked: Zarvil&apos;s policy for the authorization service (polkit) is not installed.</source>
        <translation>Не вдається перевірити права адміністратора: правила Zarvil для служби авторизації (polkit) не встановлено.</translation>
    </message>
    <message>
        <source>Administrator rights cannot be checked: the authorization service (polkit) has failed.</source>
        <translation>Не вдається перевірити права адміністратора: збій служби авторизації (polkit).</translation>
    </message>
    <message>
        <source>No authentication agent is running that could ask for an administrator&apos;s password.</source>
        <translation>Не запущено агента автентифікації, який міг би запитати пароль адміністратора.</translation>
    </message>
    <message>
        <source>An administrator&apos;s password is needed.</source>
        <translation>Потрібен пароль адміністратора.</translation>
    </message>
    <message>
        <source>The authentication has failed.</source>
        <translation>Автентифікація не вдалася.</translation>
    </message>
    <message>
        <source>You do not have administrator rights.</source>
        <translation>У вас немає прав адміністратора.</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <translation>LTR</translation>
    </message>
</context>
<context>
    <name>ScriptsTab</name>
    <message>
        <source>&amp;Run these scripts when the power fails</source>
        <translation>&amp;Виконувати ці скрипти, коли зникає живлення</translation>
    </message>
    <message>
        <source>The agent runs the scripts before the shutdown</source>
        <translation>Агент виконує скрипти перед вимкненням</translation>
    </message>
    <message>
        <source>Zarvil runs them before it shuts the computer down.</source>
        <translation>Zarvil виконує їх, перш ніж вимкнути комп’ютер.</translation>
    </message>
    <message>
        <source>Ne&amp;w script</source>
        <translation>&amp;Новий скрипт</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Назва</translation>
    </message>
    <message>
        <source>Title of the new script</source>
        <translation>Назва нового скрипту</translation>
    </message>
    <message>
        <source>Title of the new script; it is also the name of its file</source>
        <translation>Назва нового скрипту; так називатиметься і його файл</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>С&amp;творити</translation>
    </message>
    <message>
        <source>Creates an empty script of this title</source>
        <translation>Створює порожній скрипт із цією назвою</translation>
    </message>
    <message>
        <source>Scripts</source>
        <translation>Скрипти</translation>
    </message>
</context>
<context>
    <name>UninstallPanel</name>
    <message>
        <source>Uninstall Zarvil</source>
        <translation>Видалення Zarvil</translation>
    </message>
    <message>
        <source>Uninstall Zarvil?</source>
        <translation>Видалити Zarvil?</translation>
    </message>
    <message>
        <source>Zarvil quits, and these are removed:</source>
        <translation>Zarvil завершить роботу, і буде видалено:</translation>
    </message>
    <message>
        <source>•  the Zarvil application
•  this pane
•  the settings of Zarvil</source>
        <translation>•  програму Zarvil
•  цю панель
•  налаштування Zarvil</translation>
    </message>
    <message>
        <source>Your scripts are kept. This window closes at once, and none of it can be undone.</source>
        <translation>Ваші скрипти залишаться. Це вікно одразу закриється, і скасувати нічого не можна буде.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Видалити</translation>
    </message>
</context>
<context>
    <name>zarvil::BusConnection</name>
    <message>
        <source>The message bus does not answer</source>
        <translation>Шина повідомлень не відповідає</translation>
    </message>
    <message>
        <source>The connection to the message bus was lost</source>
        <translation>Втрачено з’єднання з шиною повідомлень</translation>
    </message>
</context>
<context>
    <name>zarvil::host::HostWindow</name>
    <message>
        <source>Preference panes</source>
        <translation>Панелі налаштувань</translation>
    </message>
    <message>
        <source>Broken pane</source>
        <translation>Пошкоджена панель</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Налаштування</translation>
    </message>
</context>
<context>
    <name>zarvil::qt::HelpWindow</name>
    <message>
        <source>Help</source>
        <translation>Довідка</translation>
    </message>
    <message>
        <source>What Is &amp;This?</source>
        <translation>Що &amp;це?</translation>
    </message>
    <message>
        <source>Explains the control of the window that you click next</source>
        <translation>Пояснює елемент вікна, який ви клацнете далі</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name>AccountPage</name>
    <message>
        <source>Enter account and password.</source>
        <translation>Введите аккаунт и пароль.</translation>
    </message>
    <message>
        <source>Account operation failed</source>
        <extracomment>Shown when signing in or out failed without a reason. Word it as a user would understand it: &quot;Could not complete the account action&quot;</extracomment>
        <translation>Не удалось выполнить действие с аккаунтом</translation>
    </message>
</context>
<context>
    <name>AccountSignInCard</name>
    <message>
        <source>Remember this account</source>
        <translation>Запомнить аккаунт</translation>
    </message>
    <message>
        <source>Sign In</source>
        <extracomment>Button that signs in to the Tovra account</extracomment>
        <translation>Войти</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Вход</translation>
    </message>
    <message>
        <source>Use your Tovra account to connect and sync available locations.</source>
        <translation>Войдите в аккаунт Tovra, чтобы подключаться и получать список доступных локаций.</translation>
    </message>
    <message>
        <source>Email or user ID</source>
        <translation>Эл. почта или ID пользователя</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>Sign Up</source>
        <extracomment>Button that opens the page to create a Tovra account</extracomment>
        <translation>Регистрация</translation>
    </message>
    <message>
        <source>Forgot password?</source>
        <extracomment>Button (shown as a link) that opens the password reset page</extracomment>
        <translation>Забыли пароль?</translation>
    </message>
    <message>
        <source>Signing in...</source>
        <extracomment>Button while the sign-in runs</extracomment>
        <translation>Вход...</translation>
    </message>
</context>
<context>
    <name>AccountSummaryCard</name>
    <message>
        <source>Renew</source>
        <extracomment>Button that opens the page to renew the plan</extracomment>
        <translation>Продлить</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <extracomment>Button that signs out of the Tovra account</extracomment>
        <translation>Выйти</translation>
    </message>
    <message>
        <source>Signed in</source>
        <translation>Вход выполнен</translation>
    </message>
    <message>
        <source>User ID: %1</source>
        <translation>ID пользователя: %1</translation>
    </message>
    <message>
        <source>Plan: %1</source>
        <translation>Тариф: %1</translation>
    </message>
    <message>
        <source>Days left: %1</source>
        <translation>Осталось дней: %1</translation>
    </message>
    <message>
        <source>Max simultaneous devices: %1</source>
        <translation>Устройств одновременно: до %1</translation>
    </message>
    <message>
        <source>Signing out...</source>
        <extracomment>Button while the sign-out runs</extracomment>
        <translation>Выход...</translation>
    </message>
    <message>
        <source>Opening…</source>
        <extracomment>Button while the renewal page opens</extracomment>
        <translation>Открытие…</translation>
    </message>
</context>
<context>
    <name>AppSection</name>
    <message>
        <source>App</source>
        <translation>Приложение</translation>
    </message>
    <message>
        <source>Change…</source>
        <extracomment>Button that opens the language picker</extracomment>
        <translation>Изменить…</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Запускать при входе в систему</translation>
    </message>
    <message>
        <source>Start Tovra in the tray when you sign in to the desktop.</source>
        <translation>Запускать Tovra в системном трее при входе в систему.</translation>
    </message>
    <message>
        <source>Show window at launch</source>
        <translation>Показывать окно при запуске</translation>
    </message>
    <message>
        <source>Open this window when Tovra starts; otherwise only the tray icon appears.</source>
        <translation>Открывать это окно при запуске Tovra; иначе появится только значок в трее.</translation>
    </message>
    <message>
        <source>Same as desktop</source>
        <translation>Как в системе</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Светлая</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Тёмная</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Тема</translation>
    </message>
    <message>
        <source>Light, dark, or following the desktop.</source>
        <translation>Светлая, тёмная или как в системе.</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>Изменить язык</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>%1, following the desktop</source>
        <translation>%1, как в системе</translation>
    </message>
    <message>
        <source>Could not update login startup</source>
        <translation>Не удалось изменить автозапуск</translation>
    </message>
    <message>
        <source>Show…</source>
        <extracomment>Button that opens the list of keyboard shortcuts</extracomment>
        <translation>Показать…</translation>
    </message>
    <message>
        <source>Show keyboard shortcuts</source>
        <translation>Показать сочетания клавиш</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Сочетания клавиш</translation>
    </message>
    <message>
        <source>Every key that works in this window.</source>
        <translation>Все клавиши, которые работают в этом окне.</translation>
    </message>
</context>
<context>
    <name>CatalogTreeModel</name>
    <message>
        <source>Location %1</source>
        <translation>Локация %1</translation>
    </message>
    <message>
        <source>Other locations</source>
        <translation>Другие локации</translation>
    </message>
    <message>
        <source>Premium</source>
        <translation>Премиум</translation>
    </message>
    <message>
        <source>locations: %1</source>
        <translation>локаций: %1</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 мс</translation>
    </message>
    <message>
        <source>latency not measured</source>
        <translation>задержка не измерена</translation>
    </message>
    <message>
        <source>favourite</source>
        <translation>в избранном</translation>
    </message>
    <message>
        <source>connected</source>
        <extracomment>Said of a location in the list: it is the one the VPN is connected to now (not connecting)</extracomment>
        <translation>подключено</translation>
    </message>
    <message>
        <source>not in your plan</source>
        <translation>не входит в ваш тариф</translation>
    </message>
    <message>
        <source>Your plan does not include this location. Upgrade to use it.</source>
        <translation>Эта локация не входит в ваш тариф. Смените тариф, чтобы пользоваться ею.</translation>
    </message>
    <message>
        <source>This list may be out of date.</source>
        <translation>Список может быть устаревшим.</translation>
    </message>
    <message>
        <source>Locked: needs the %1 plan. Upgrade to use it.</source>
        <translation>Недоступно: нужен тариф %1. Смените тариф, чтобы пользоваться этой локацией.</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <extracomment>Button</extracomment>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>ConnectionSection</name>
    <message>
        <source>Connection</source>
        <translation>Подключение</translation>
    </message>
    <message>
        <source>API URL</source>
        <translation>URL API</translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>Button that saves the API URL typed in the field</extracomment>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Reset to default</source>
        <extracomment>Button that puts the API URL back to the default address</extracomment>
        <translation>Сбросить</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>Auto connect choice: connect to nothing when the service starts</extracomment>
        <translation>Выкл.</translation>
    </message>
    <message>
        <source>Last location</source>
        <translation>Последняя локация</translation>
    </message>
    <message>
        <source>Fastest location</source>
        <translation>Самая быстрая локация</translation>
    </message>
    <message>
        <source>Auto connect</source>
        <translation>Автоподключение</translation>
    </message>
    <message>
        <source>What the Tovra service connects to when it starts.</source>
        <translation>К чему подключается служба Tovra при запуске.</translation>
    </message>
    <message>
        <source>Save API URL</source>
        <translation>Сохранить URL API</translation>
    </message>
    <message>
        <source>Reset API URL to default</source>
        <translation>Сбросить URL API на стандартный</translation>
    </message>
    <message>
        <source>Where the Tovra service reaches the account and location servers. Change it only when support asks you to.</source>
        <translation>Через этот адрес служба Tovra связывается с серверами аккаунтов и локаций. Меняйте его, только если об этом попросит служба поддержки.</translation>
    </message>
    <message>
        <source>Validation: %1</source>
        <translation>Проверка: %1</translation>
    </message>
    <message>
        <source>Validated by the Tovra service</source>
        <translation>Проверено службой Tovra</translation>
    </message>
    <message>
        <source>Not validated: the Tovra service saved this address but could not confirm it</source>
        <translation>Не проверено: служба Tovra сохранила адрес, но не смогла его подтвердить</translation>
    </message>
</context>
<context>
    <name>Continents</name>
    <message>
        <source>Africa</source>
        <translation>Африка</translation>
    </message>
    <message>
        <source>Antarctica</source>
        <translation>Антарктида</translation>
    </message>
    <message>
        <source>Asia</source>
        <translation>Азия</translation>
    </message>
    <message>
        <source>Europe</source>
        <translation>Европа</translation>
    </message>
    <message>
        <source>Middle East</source>
        <translation>Ближний Восток</translation>
    </message>
    <message>
        <source>North America</source>
        <translation>Северная Америка</translation>
    </message>
    <message>
        <source>Oceania</source>
        <translation>Океания</translation>
    </message>
    <message>
        <source>South America</source>
        <translation>Южная Америка</translation>
    </message>
</context>
<context>
    <name>ControlClient</name>
    <message>
        <source>Tovra daemon is not running.</source>
        <translation>Служба Tovra не запущена.</translation>
    </message>
    <message>
        <source>Tovra daemon access denied. Add this user to the tovracli group, then sign out and back in.</source>
        <translation>Нет доступа к службе Tovra. Добавьте этого пользователя в группу tovracli, затем выйдите из системы и войдите снова.</translation>
    </message>
    <message>
        <source>Could not connect to Tovra daemon.</source>
        <translation>Не удалось подключиться к службе Tovra.</translation>
    </message>
    <message>
        <source>Tovra daemon is too old for Kill Switch modes. Update Tovra.</source>
        <translation>Служба Tovra слишком старая для режимов Kill Switch. Обновите Tovra.</translation>
    </message>
</context>
<context>
    <name>Countries</name>
    <message>
        <source>Afghanistan</source>
        <translation>Афганистан</translation>
    </message>
    <message>
        <source>Land Islands</source>
        <translation>Аландские острова</translation>
    </message>
    <message>
        <source>Albania</source>
        <translation>Албания</translation>
    </message>
    <message>
        <source>Algeria</source>
        <translation>Алжир</translation>
    </message>
    <message>
        <source>American Samoa</source>
        <translation>Американские Самоа</translation>
    </message>
    <message>
        <source>Andorra</source>
        <translation>Андорра</translation>
    </message>
    <message>
        <source>Angola</source>
        <translation>Ангола</translation>
    </message>
    <message>
        <source>Anguilla</source>
        <translation>Ангвилла</translation>
    </message>
    <message>
        <source>Antigua and Barbuda</source>
        <translation>Антигуа и Барбуда</translation>
    </message>
    <message>
        <source>Argentina</source>
        <translation>Аргентина</translation>
    </message>
    <message>
        <source>Armenia</source>
        <translation>Армения</translation>
    </message>
    <message>
        <source>Aruba</source>
        <translation>Аруба</translation>
    </message>
    <message>
        <source>Australia</source>
        <translation>Австралия</translation>
    </message>
    <message>
        <source>Austria</source>
        <translation>Австрия</translation>
    </message>
    <message>
        <source>Azerbaijan</source>
        <translation>Азербайджан</translation>
    </message>
    <message>
        <source>Bahamas</source>
        <translation>Багамы</translation>
    </message>
    <message>
        <source>Bahrain</source>
        <translation>Бахрейн</translation>
    </message>
    <message>
        <source>Bangladesh</source>
        <translation>Бангладеш</translation>
    </message>
    <message>
        <source>Barbados</source>
        <translation>Барбадос</translation>
    </message>
    <message>
        <source>Belarus</source>
        <translation>Беларусь</translation>
    </message>
    <message>
        <source>Belgium</source>
        <translation>Бельгия</translation>
    </message>
    <message>
        <source>Belize</source>
        <translation>Белиз</translation>
    </message>
    <message>
        <source>Benin</source>
        <translation>Бенин</translation>
    </message>
    <message>
        <source>Bermuda</source>
        <translation>Бермуды</translation>
    </message>
    <message>
        <source>Bhutan</source>
        <translation>Бутан</translation>
    </message>
    <message>
        <source>Bolivia</source>
        <translation>Боливия</translation>
    </message>
    <message>
        <source>Bosnia and Herzegovina</source>
        <translation>Босния и Герцеговина</translation>
    </message>
    <message>
        <source>Botswana</source>
        <translation>Ботсвана</translation>
    </message>
    <message>
        <source>Brazil</source>
        <translation>Бразилия</translation>
    </message>
    <message>
        <source>Brunei Darussalam</source>
        <translation>Бруней Даруссалам</translation>
    </message>
    <message>
        <source>Bulgaria</source>
        <translation>Болгария</translation>
    </message>
    <message>
        <source>Burkina Faso</source>
        <translation>Буркина-Фасо</translation>
    </message>
    <message>
        <source>Burundi</source>
        <translation>Бурунди</translation>
    </message>
    <message>
        <source>Cambodia</source>
        <translation>Камбоджа</translation>
    </message>
    <message>
        <source>Cameroon</source>
        <translation>Камерун</translation>
    </message>
    <message>
        <source>Canada</source>
        <translation>Канада</translation>
    </message>
    <message>
        <source>Cape Verde</source>
        <translation>Кабо-Верде</translation>
    </message>
    <message>
        <source>Cayman Islands</source>
        <translation>Каймановы острова</translation>
    </message>
    <message>
        <source>Central African Republic</source>
        <translation>Центрально-африканская республика</translation>
    </message>
    <message>
        <source>Chad</source>
        <translation>Чад</translation>
    </message>
    <message>
        <source>Chile</source>
        <translation>Чили</translation>
    </message>
    <message>
        <source>China</source>
        <translation>Китай</translation>
    </message>
    <message>
        <source>Colombia</source>
        <translation>Колумбия</translation>
    </message>
    <message>
        <source>Comoros</source>
        <translation>Коморы</translation>
    </message>
    <message>
        <source>Congo</source>
        <translation>Конго</translation>
    </message>
    <message>
        <source>Congo, The Democratic Republic of the</source>
        <translation>Демократическая Республика Конго</translation>
    </message>
    <message>
        <source>Cook Islands</source>
        <translation>Острова Кука</translation>
    </message>
    <message>
        <source>Costa Rica</source>
        <translation>Коста-Рика</translation>
    </message>
    <message>
        <source>Cote D&apos;Ivoire</source>
        <translation>Кот-д&apos;Ивуар</translation>
    </message>
    <message>
        <source>Croatia</source>
        <translation>Хорватия</translation>
    </message>
    <message>
        <source>Cuba</source>
        <translation>Куба</translation>
    </message>
    <message>
        <source>Cyprus</source>
        <translation>Кипр</translation>
    </message>
    <message>
        <source>Czech Republic</source>
        <translation>Чехия</translation>
    </message>
    <message>
        <source>Denmark</source>
        <translation>Дания</translation>
    </message>
    <message>
        <source>Djibouti</source>
        <translation>Джибути</translation>
    </message>
    <message>
        <source>Dominica</source>
        <translation>Доминика</translation>
    </message>
    <message>
        <source>Dominican Republic</source>
        <translation>Доминиканская республика</translation>
    </message>
    <message>
        <source>Ecuador</source>
        <translation>Эквадор</translation>
    </message>
    <message>
        <source>Egypt</source>
        <translation>Египет</translation>
    </message>
    <message>
        <source>El Salvador</source>
        <translation>Сальвадор</translation>
    </message>
    <message>
        <source>Equatorial Guinea</source>
        <translation>Экваториальная Гвинея</translation>
    </message>
    <message>
        <source>Eritrea</source>
        <translation>Эритрея</translation>
    </message>
    <message>
        <source>Estonia</source>
        <translation>Эстония</translation>
    </message>
    <message>
        <source>Ethiopia</source>
        <translation>Эфиопия</translation>
    </message>
    <message>
        <source>Falkland Islands (Malvinas)</source>
        <translation>Фолклендские (Мальвинские) острова</translation>
    </message>
    <message>
        <source>Faroe Islands</source>
        <translation>Фарерские острова</translation>
    </message>
    <message>
        <source>Fiji</source>
        <translation>Фиджи</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>Финляндия</translation>
    </message>
    <message>
        <source>France</source>
        <translation>Франция</translation>
    </message>
    <message>
        <source>French Guiana</source>
        <translation>Французская Гвиана</translation>
    </message>
    <message>
        <source>French Polynesia</source>
        <translation>Французская Полинезия</translation>
    </message>
    <message>
        <source>Gabon</source>
        <translation>Габон</translation>
    </message>
    <message>
        <source>Gambia</source>
        <translation>Гамбия</translation>
    </message>
    <message>
        <source>Georgia</source>
        <translation>Грузия</translation>
    </message>
    <message>
        <source>Germany</source>
        <translation>Германия</translation>
    </message>
    <message>
        <source>Ghana</source>
        <translation>Гана</translation>
    </message>
    <message>
        <source>Gibraltar</source>
        <translation>Гибралтар</translation>
    </message>
    <message>
        <source>Greece</source>
        <translation>Греция</translation>
    </message>
    <message>
        <source>Greenland</source>
        <translation>Гренландия</translation>
    </message>
    <message>
        <source>Grenada</source>
        <translation>Гренада</translation>
    </message>
    <message>
        <source>Guadeloupe</source>
        <translation>Гваделупа</translation>
    </message>
    <message>
        <source>Guam</source>
        <translation>Гуам</translation>
    </message>
    <message>
        <source>Guatemala</source>
        <translation>Гватемала</translation>
    </message>
    <message>
        <source>Guernsey</source>
        <translation>Гернси</translation>
    </message>
    <message>
        <source>Guinea</source>
        <translation>Гвинея</translation>
    </message>
    <message>
        <source>Guinea-Bissau</source>
        <translation>Гвинея-Бисау</translation>
    </message>
    <message>
        <source>Guyana</source>
        <translation>Гайана</translation>
    </message>
    <message>
        <source>Haiti</source>
        <translation>Гаити</translation>
    </message>
    <message>
        <source>Holy See (Vatican City State)</source>
        <translation>Государство-город Ватикан</translation>
    </message>
    <message>
        <source>Honduras</source>
        <translation>Гондурас</translation>
    </message>
    <message>
        <source>Hong Kong (China)</source>
        <translation>Гонконг</translation>
    </message>
    <message>
        <source>Hungary</source>
        <translation>Венгрия</translation>
    </message>
    <message>
        <source>Iceland</source>
        <translation>Исландия</translation>
    </message>
    <message>
        <source>India</source>
        <translation>Индия</translation>
    </message>
    <message>
        <source>Indonesia</source>
        <translation>Индонезия</translation>
    </message>
    <message>
        <source>Iran, Islamic Republic of</source>
        <translation>Иран</translation>
    </message>
    <message>
        <source>Iraq</source>
        <translation>Ирак</translation>
    </message>
    <message>
        <source>Ireland</source>
        <translation>Ирландия</translation>
    </message>
    <message>
        <source>Isle of Man</source>
        <translation>Остров Мэн</translation>
    </message>
    <message>
        <source>Israel</source>
        <translation>Израиль</translation>
    </message>
    <message>
        <source>Italy</source>
        <translation>Италия</translation>
    </message>
    <message>
        <source>Jamaica</source>
        <translation>Ямайка</translation>
    </message>
    <message>
        <source>Japan</source>
        <translation>Япония</translation>
    </message>
    <message>
        <source>Jersey</source>
        <translation>Джерси</translation>
    </message>
    <message>
        <source>Jordan</source>
        <translation>Иордания</translation>
    </message>
    <message>
        <source>Kazakhstan</source>
        <translation>Казахстан</translation>
    </message>
    <message>
        <source>Kenya</source>
        <translation>Кения</translation>
    </message>
    <message>
        <source>Kiribati</source>
        <translation>Кирибати</translation>
    </message>
    <message>
        <source>Korea, Democratic People&apos;S Republic of</source>
        <translation>Северная Корея</translation>
    </message>
    <message>
        <source>Korea, Republic of</source>
        <translation>Южная Корея</translation>
    </message>
    <message>
        <source>Kuwait</source>
        <translation>Кувейт</translation>
    </message>
    <message>
        <source>Kyrgyzstan</source>
        <translation>Киргизия</translation>
    </message>
    <message>
        <source>Lao People&apos;S Democratic Republic</source>
        <translation>Лаосская Народно-Демократическая Республика</translation>
    </message>
    <message>
        <source>Latvia</source>
        <translation>Латвия</translation>
    </message>
    <message>
        <source>Lebanon</source>
        <translation>Ливан</translation>
    </message>
    <message>
        <source>Lesotho</source>
        <translation>Лесото</translation>
    </message>
    <message>
        <source>Liberia</source>
        <translation>Либерия</translation>
    </message>
    <message>
        <source>Libyan Arab Jamahiriya</source>
        <translation>Ливия</translation>
    </message>
    <message>
        <source>Liechtenstein</source>
        <translation>Лихтенштейн</translation>
    </message>
    <message>
        <source>Lithuania</source>
        <translation>Литва</translation>
    </message>
    <message>
        <source>Luxembourg</source>
        <translation>Люксембург</translation>
    </message>
    <message>
        <source>Macao (China)</source>
        <translation>Макао</translation>
    </message>
    <message>
        <source>Macedonia, The Former Yugoslav Republic of</source>
        <translation>Северная Македония</translation>
    </message>
    <message>
        <source>Madagascar</source>
        <translation>Мадагаскар</translation>
    </message>
    <message>
        <source>Malawi</source>
        <translation>Малави</translation>
    </message>
    <message>
        <source>Malaysia</source>
        <translation>Малайзия</translation>
    </message>
    <message>
        <source>Maldives</source>
        <translation>Мальдивы</translation>
    </message>
    <message>
        <source>Mali</source>
        <translation>Мали</translation>
    </message>
    <message>
        <source>Malta</source>
        <translation>Мальта</translation>
    </message>
    <message>
        <source>Marshall Islands</source>
        <translation>Маршалловы острова</translation>
    </message>
    <message>
        <source>Martinique</source>
        <translation>Мартиника</translation>
    </message>
    <message>
        <source>Mauritania</source>
        <translation>Мавритания</translation>
    </message>
    <message>
        <source>Mauritius</source>
        <translation>Маврикий</translation>
    </message>
    <message>
        <source>Mayotte</source>
        <translation>Майот</translation>
    </message>
    <message>
        <source>Mexico</source>
        <translation>Мексика</translation>
    </message>
    <message>
        <source>Micronesia, Federated States of</source>
        <translation>Федеративные Штаты Микронезии</translation>
    </message>
    <message>
        <source>Moldova, Republic of</source>
        <translation>Молдавия</translation>
    </message>
    <message>
        <source>Monaco</source>
        <translation>Монако</translation>
    </message>
    <message>
        <source>Mongolia</source>
        <translation>Монголия</translation>
    </message>
    <message>
        <source>Montenegro</source>
        <translation>Черногория</translation>
    </message>
    <message>
        <source>Montserrat</source>
        <translation>Монтсеррат</translation>
    </message>
    <message>
        <source>Morocco</source>
        <translation>Марокко</translation>
    </message>
    <message>
        <source>Mozambique</source>
        <translation>Мозамбик</translation>
    </message>
    <message>
        <source>Myanmar</source>
        <translation>Мьянма</translation>
    </message>
    <message>
        <source>Namibia</source>
        <translation>Намибия</translation>
    </message>
    <message>
        <source>Nauru</source>
        <translation>Науру</translation>
    </message>
    <message>
        <source>Nepal</source>
        <translation>Непал</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>Нидерланды</translation>
    </message>
    <message>
        <source>New Caledonia</source>
        <translation>Новая Каледония</translation>
    </message>
    <message>
        <source>New Zealand</source>
        <translation>Новая Зеландия</translation>
    </message>
    <message>
        <source>Nicaragua</source>
        <translation>Никарагуа</translation>
    </message>
    <message>
        <source>Niger</source>
        <translation>Нигер</translation>
    </message>
    <message>
        <source>Nigeria</source>
        <translation>Нигерия</translation>
    </message>
    <message>
        <source>Niue</source>
        <translation>Ниуэ</translation>
    </message>
    <message>
        <source>Norfolk Island</source>
        <translation>Остров Норфолк</translation>
    </message>
    <message>
        <source>Northern Mariana Islands</source>
        <translation>Острова северной Марианы</translation>
    </message>
    <message>
        <source>Norway</source>
        <translation>Норвегия</translation>
    </message>
    <message>
        <source>Oman</source>
        <translation>Оман</translation>
    </message>
    <message>
        <source>Pakistan</source>
        <translation>Пакистан</translation>
    </message>
    <message>
        <source>Palau</source>
        <translation>Палау</translation>
    </message>
    <message>
        <source>Palestinian Territory, Occupied</source>
        <translation>Палестина</translation>
    </message>
    <message>
        <source>Panama</source>
        <translation>Панама</translation>
    </message>
    <message>
        <source>Papua New Guinea</source>
        <translation>Папуа — Новая Гвинея</translation>
    </message>
    <message>
        <source>Paraguay</source>
        <translation>Парагвай</translation>
    </message>
    <message>
        <source>Peru</source>
        <translation>Перу</translation>
    </message>
    <message>
        <source>Philippines</source>
        <translation>Филиппины</translation>
    </message>
    <message>
        <source>Poland</source>
        <translation>Польша</translation>
    </message>
    <message>
        <source>Portugal</source>
        <translation>Португалия</translation>
    </message>
    <message>
        <source>Puerto Rico</source>
        <translation>Пуэрто-Рико</translation>
    </message>
    <message>
        <source>Qatar</source>
        <translation>Катар</translation>
    </message>
    <message>
        <source>Reunion</source>
        <translation>Реюньон</translation>
    </message>
    <message>
        <source>Romania</source>
        <translation>Румыния</translation>
    </message>
    <message>
        <source>Russian Federation</source>
        <translation>Российская Федерация</translation>
    </message>
    <message>
        <source>Rwanda</source>
        <translation>Руанда</translation>
    </message>
    <message>
        <source>Saint Helena</source>
        <translation>Остров Святой Елены, Остров Вознесения и Тристан-да-Кунья</translation>
    </message>
    <message>
        <source>Saint Kitts and Nevis</source>
        <translation>Сент-Китс и Невис</translation>
    </message>
    <message>
        <source>Saint Lucia</source>
        <translation>Сент-Люсия</translation>
    </message>
    <message>
        <source>Saint Pierre and Miquelon</source>
        <translation>Сен-Пьер и Микелон</translation>
    </message>
    <message>
        <source>Saint Vincent and the Grenadines</source>
        <translation>Сент-Винсент и Гренадины</translation>
    </message>
    <message>
        <source>Samoa</source>
        <translation>Самоа</translation>
    </message>
    <message>
        <source>San Marino</source>
        <translation>Сан-Марино</translation>
    </message>
    <message>
        <source>Sao Tome and Principe</source>
        <translation>Сан-Томе и Принсипи</translation>
    </message>
    <message>
        <source>Saudi Arabia</source>
        <translation>Саудовская Аравия</translation>
    </message>
    <message>
        <source>Senegal</source>
        <translation>Сенегал</translation>
    </message>
    <message>
        <source>Serbia</source>
        <translation>Сербия</translation>
    </message>
    <message>
        <source>Seychelles</source>
        <translation>Сейшелы</translation>
    </message>
    <message>
        <source>Sierra Leone</source>
        <translation>Сьерра-Леоне</translation>
    </message>
    <message>
        <source>Singapore</source>
        <translation>Сингапур</translation>
    </message>
    <message>
        <source>Slovakia</source>
        <translation>Словакия</translation>
    </message>
    <message>
        <source>Slovenia</source>
        <translation>Словения</translation>
    </message>
    <message>
        <source>Solomon Islands</source>
        <translation>Соломоновы Острова</translation>
    </message>
    <message>
        <source>Somalia</source>
        <translation>Сомали</translation>
    </message>
    <message>
        <source>South Africa</source>
        <translation>Южная Африка</translation>
    </message>
    <message>
        <source>South Sudan</source>
        <translation>Южный Судан</translation>
    </message>
    <message>
        <source>Spain</source>
        <translation>Испания</translation>
    </message>
    <message>
        <source>Sri Lanka</source>
        <translation>Шри-Ланка</translation>
    </message>
    <message>
        <source>Sudan</source>
        <translation>Судан</translation>
    </message>
    <message>
        <source>Suriname</source>
        <translation>Суринам</translation>
    </message>
    <message>
        <source>Swaziland</source>
        <translation>Эсватини</translation>
    </message>
    <message>
        <source>Sweden</source>
        <translation>Швеция</translation>
    </message>
    <message>
        <source>Switzerland</source>
        <translation>Швейцария</translation>
    </message>
    <message>
        <source>Syrian Arab Republic</source>
        <translation>Сирийская Арабская Республика</translation>
    </message>
    <message>
        <source>Taiwan (China)</source>
        <translation>Тайвань</translation>
    </message>
    <message>
        <source>Tajikistan</source>
        <translation>Таджикистан</translation>
    </message>
    <message>
        <source>Tanzania, United Republic of</source>
        <translation>Танзания</translation>
    </message>
    <message>
        <source>Thailand</source>
        <translation>Таиланд</translation>
    </message>
    <message>
        <source>Timor-Leste</source>
        <translation>Восточный Тимор</translation>
    </message>
    <message>
        <source>Togo</source>
        <translation>Того</translation>
    </message>
    <message>
        <source>Tokelau</source>
        <translation>Токелау</translation>
    </message>
    <message>
        <source>Tonga</source>
        <translation>Тонга</translation>
    </message>
    <message>
        <source>Trinidad and Tobago</source>
        <translation>Тринидад и Тобаго</translation>
    </message>
    <message>
        <source>Tunisia</source>
        <translation>Тунис</translation>
    </message>
    <message>
        <source>Turkey</source>
        <translation>Турция</translation>
    </message>
    <message>
        <source>Turkmenistan</source>
        <translation>Туркменистан</translation>
    </message>
    <message>
        <source>Turks and Caicos Islands</source>
        <translation>Острова Туркс и Каикос</translation>
    </message>
    <message>
        <source>Tuvalu</source>
        <translation>Тувалу</translation>
    </message>
    <message>
        <source>Uganda</source>
        <translation>Уганда</translation>
    </message>
    <message>
        <source>Ukraine</source>
        <translation>Украина</translation>
    </message>
    <message>
        <source>United Arab Emirates</source>
        <translation>Объединённые Арабские Эмираты</translation>
    </message>
    <message>
        <source>United Kingdom</source>
        <translation>Соединённое Королевство</translation>
    </message>
    <message>
        <source>United States</source>
        <translation>Соединённые штаты</translation>
    </message>
    <message>
        <source>Uruguay</source>
        <translation>Уругвай</translation>
    </message>
    <message>
        <source>Uzbekistan</source>
        <translation>Узбекистан</translation>
    </message>
    <message>
        <source>Vanuatu</source>
        <translation>Вануату</translation>
    </message>
    <message>
        <source>Venezuela</source>
        <translation>Венесуэла</translation>
    </message>
    <message>
        <source>Viet Nam</source>
        <translation>Вьетнам</translation>
    </message>
    <message>
        <source>Virgin Islands, British</source>
        <translation>Виргинские острова (Британия)</translation>
    </message>
    <message>
        <source>Virgin Islands, U.S.</source>
        <translation>Виргинские острова (США)</translation>
    </message>
    <message>
        <source>Wallis and Futuna</source>
        <translation>Уоллес и Футана</translation>
    </message>
    <message>
        <source>Western Sahara</source>
        <translation>Западная Сахара</translation>
    </message>
    <message>
        <source>Yemen</source>
        <translation>Йемен</translation>
    </message>
    <message>
        <source>Zambia</source>
        <translation>Замбия</translation>
    </message>
    <message>
        <source>Zimbabwe</source>
        <translation>Зимбабве</translation>
    </message>
</context>
<context>
    <name>DesktopAnswer</name>
    <message>
        <source>tovra: no location matches “%1”</source>
        <translation>tovra: нет локации, соответствующей «%1»</translation>
    </message>
    <message>
        <source>tovra: Tovra is busy with another connection or sign-in; try again when it has finished</source>
        <translation>tovra: Tovra занят другим подключением или входом; повторите, когда он закончит</translation>
    </message>
    <message>
        <source>tovra: sign in to Tovra before connecting</source>
        <translation>tovra: войдите в Tovra перед подключением</translation>
    </message>
    <message>
        <source>tovra: your plan does not include “%1”</source>
        <translation>tovra: ваш тариф не включает «%1»</translation>
    </message>
    <message>
        <source>tovra: the request failed</source>
        <translation>tovra: запрос не выполнен</translation>
    </message>
    <message>
        <source>tovra: %1</source>
        <translation>tovra: %1</translation>
    </message>
</context>
<context>
    <name>DesktopCommandLine</name>
    <message>
        <source>tovra: give only one of %1</source>
        <translation>tovra: укажите только один из параметров: %1</translation>
    </message>
</context>
<context>
    <name>DesktopCommandSender</name>
    <message>
        <source>could not start Tovra</source>
        <translation>не удалось запустить Tovra</translation>
    </message>
    <message>
        <source>Tovra did not start</source>
        <translation>Tovra не запустился</translation>
    </message>
    <message>
        <source>the running Tovra is an older version: it came to the front but did not act on the request; quit it and try again</source>
        <translation>запущенный Tovra — более старая версия: он вышел на передний план, но не выполнил запрос; закройте его и повторите</translation>
    </message>
    <message>
        <source>the running Tovra did not answer</source>
        <translation>запущенный Tovra не ответил</translation>
    </message>
</context>
<context>
    <name>DiagnosticsSection</name>
    <message>
        <source>Configuration</source>
        <extracomment>Label of a folder path: where the service keeps its configuration</extracomment>
        <translation>Конфигурация</translation>
    </message>
    <message>
        <source>Runtime</source>
        <extracomment>Label of a folder path: where the service keeps its running files (socket, PID file); not a duration</extracomment>
        <translation>Рабочая папка</translation>
    </message>
    <message>
        <source>Logs</source>
        <extracomment>Label of a folder path: the service&apos;s log folder</extracomment>
        <translation>Журналы</translation>
    </message>
    <message>
        <source>State file</source>
        <extracomment>Label of a file path</extracomment>
        <translation>Файл состояния</translation>
    </message>
    <message>
        <source>Credentials key</source>
        <extracomment>Label of a file path: the key file for the stored account credentials</extracomment>
        <translation>Ключ учётных данных</translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>Label of a file path: the service&apos;s history file</extracomment>
        <translation>История</translation>
    </message>
    <message>
        <source>Profiles</source>
        <extracomment>Label of a folder path: the service&apos;s profiles folder</extracomment>
        <translation>Профили</translation>
    </message>
    <message>
        <source>Control socket</source>
        <extracomment>Label of a file path: the socket this app talks to the service through</extracomment>
        <translation>Управляющий сокет</translation>
    </message>
    <message>
        <source>PID file</source>
        <extracomment>Label of a file path</extracomment>
        <translation>PID-файл</translation>
    </message>
    <message>
        <source>Control address</source>
        <extracomment>Label of an address the service listens on for control requests</extracomment>
        <translation>Адрес управления</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>Диагностика</translation>
    </message>
    <message>
        <source>Repair</source>
        <extracomment>Button that resets the kill switch, local proxy and tunnel</extracomment>
        <translation>Восстановить</translation>
    </message>
    <message>
        <source>Open logs</source>
        <extracomment>Button that opens the log folder</extracomment>
        <translation>Открыть журналы</translation>
    </message>
    <message>
        <source>Repair connection</source>
        <translation>Восстановить подключение</translation>
    </message>
    <message>
        <source>Resets the kill switch, the local proxy and the tunnel when traffic is stuck.</source>
        <translation>Сбрасывает Kill Switch, локальный прокси и туннель, если трафик не проходит.</translation>
    </message>
    <message>
        <source>The Tovra service&apos;s log folder, for support.</source>
        <translation>Папка журналов службы Tovra — для службы поддержки.</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>Button that copies the path next to it</extracomment>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Copy %1 path</source>
        <extracomment>%1 is one of the path labels above, such as &quot;Runtime&quot;</extracomment>
        <translation>Копировать путь: %1</translation>
    </message>
    <message>
        <source>Service paths</source>
        <translation>Пути службы</translation>
    </message>
    <message>
        <source>Where the Tovra service keeps its files.</source>
        <translation>Где служба Tovra хранит свои файлы.</translation>
    </message>
    <message>
        <source>Tovra service version</source>
        <translation>Версия службы Tovra</translation>
    </message>
    <message>
        <source>Control protocol</source>
        <translation>Протокол управления</translation>
    </message>
    <message>
        <source>This app speaks version 1.</source>
        <translation>Это приложение использует версию 1.</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Не задано</translation>
    </message>
    <message>
        <source>%1, not compatible</source>
        <translation>%1, несовместима</translation>
    </message>
</context>
<context>
    <name>FieldClearButton</name>
    <message>
        <source>Clear search</source>
        <translation>Очистить поиск</translation>
    </message>
    <message>
        <source>Clear text</source>
        <translation>Очистить текст</translation>
    </message>
</context>
<context>
    <name>GuiAutostart</name>
    <message>
        <source>Login startup is not supported on this platform.</source>
        <translation>Автозапуск при входе в систему на этой платформе не поддерживается.</translation>
    </message>
    <message>
        <source>Could not resolve the Tovra executable for login startup.</source>
        <translation>Не удалось найти исполняемый файл Tovra для автозапуска.</translation>
    </message>
    <message>
        <source>Could not prepare the login startup directory.</source>
        <translation>Не удалось подготовить папку автозапуска.</translation>
    </message>
    <message>
        <source>Could not update Tovra login startup.</source>
        <translation>Не удалось обновить автозапуск Tovra.</translation>
    </message>
    <message>
        <source>Could not secure Tovra login startup.</source>
        <translation>Не удалось защитить автозапуск Tovra.</translation>
    </message>
    <message>
        <source>Could not remove Tovra from login startup.</source>
        <translation>Не удалось убрать Tovra из автозапуска.</translation>
    </message>
</context>
<context>
    <name>KeyboardShortcutsDialog</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Сочетания клавиш</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Сочетания клавиш</translation>
    </message>
    <message>
        <source>These keys work anywhere in the Tovra window. Tab moves between controls.</source>
        <translation>Эти клавиши работают в любом месте окна Tovra. Tab переходит между элементами.</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Клавиши</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Действие</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button that closes the keyboard shortcuts list</extracomment>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>KillSwitchConfirm</name>
    <message>
        <source>Unavailable</source>
        <translation>Недоступно</translation>
    </message>
    <message>
        <source>Lockdown</source>
        <translation>Принудительный режим</translation>
    </message>
    <message>
        <source>Lockdown unavailable</source>
        <translation>Принудительный режим недоступен</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>State of the kill switch: turned on</extracomment>
        <translation>Вкл.</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>State of the kill switch: turned off</extracomment>
        <translation>Выкл.</translation>
    </message>
    <message>
        <source>Kill Switch needs a VPN mode</source>
        <translation>Для Kill Switch нужен режим VPN</translation>
    </message>
    <message>
        <source>Kill Switch can’t run in Tovra Proxy. Switch to Auto (recommended), TovraVPN, or WireGuard to enable it.</source>
        <translation>Kill Switch не работает в режиме Tovra Proxy. Чтобы включить его, перейдите в режим «Авто» (рекомендуется), TovraVPN или WireGuard.</translation>
    </message>
    <message>
        <source>Switch to Auto and enable</source>
        <extracomment>Button that switches to the Auto mode and turns the kill switch on</extracomment>
        <translation>Перейти в «Авто» и включить</translation>
    </message>
    <message>
        <source>Switch to Auto and enable Kill Switch</source>
        <translation>Перейти в режим «Авто» и включить Kill Switch</translation>
    </message>
    <message>
        <source>Choose mode…</source>
        <extracomment>Button that opens the Mode page to pick a VPN mode</extracomment>
        <translation>Выбрать режим…</translation>
    </message>
    <message>
        <source>Choose a mode for Kill Switch</source>
        <translation>Выбрать режим для Kill Switch</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button</extracomment>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Tovra Proxy needs Kill Switch off</source>
        <translation>Для Tovra Proxy нужно выключить Kill Switch</translation>
    </message>
    <message>
        <source>Kill Switch blocks Tovra Proxy. Turn Kill Switch off in Settings first, then switch modes.</source>
        <translation>Kill Switch блокирует Tovra Proxy. Сначала выключите Kill Switch в настройках, затем смените режим.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <extracomment>Button that opens the Settings page</extracomment>
        <translation>Открыть настройки</translation>
    </message>
    <message>
        <source>Open Settings to turn off Kill Switch</source>
        <translation>Открыть настройки, чтобы выключить Kill Switch</translation>
    </message>
</context>
<context>
    <name>KillSwitchSection</name>
    <message>
        <source>Kill Switch</source>
        <translation>Kill Switch</translation>
    </message>
    <message>
        <source>Block traffic outside the tunnel</source>
        <translation>Блокировать трафик вне туннеля</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Авто</translation>
    </message>
    <message>
        <source>Blocks traffic outside the tunnel while Tovra is connected or connecting.</source>
        <translation>Блокирует трафик вне туннеля, пока Tovra подключена или подключается.</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Всегда</translation>
    </message>
    <message>
        <source>Blocks traffic outside the tunnel whenever Kill Switch is on, even while disconnected.</source>
        <translation>Блокирует трафик вне туннеля, пока Kill Switch включён, даже без подключения.</translation>
    </message>
    <message>
        <source>Lockdown</source>
        <translation>Принудительный</translation>
    </message>
    <message>
        <source>Set by the Tovra service: traffic outside the tunnel stays blocked and Kill Switch cannot be turned off here.</source>
        <translation>Задано службой Tovra: трафик вне туннеля остаётся заблокированным, и здесь Kill Switch выключить нельзя.</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Режим</translation>
    </message>
    <message>
        <source>When Kill Switch blocks traffic.</source>
        <translation>Когда Kill Switch блокирует трафик.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Локальная сеть</translation>
    </message>
    <message>
        <source>Whether printers, shares and other devices nearby stay reachable while traffic is blocked.</source>
        <translation>Остаются ли принтеры, общие папки и другие устройства поблизости доступными, пока трафик заблокирован.</translation>
    </message>
    <message>
        <source>Kill Switch mode: %1</source>
        <translation>Режим Kill Switch: %1</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>Сейчас: %1</translation>
    </message>
    <message>
        <source>%1. The Tovra service holds Kill Switch on; it cannot be turned off here.</source>
        <translation>%1. Служба Tovra держит Kill Switch включённым; здесь его выключить нельзя.</translation>
    </message>
    <message>
        <source>Tovra Proxy is in use: Kill Switch needs a VPN mode.</source>
        <translation>Используется Tovra Proxy: для Kill Switch нужен режим VPN.</translation>
    </message>
    <message>
        <source>Reachable</source>
        <translation>Доступна</translation>
    </message>
    <message>
        <source>Blocked</source>
        <translation>Заблокирована</translation>
    </message>
</context>
<context>
    <name>LanguagePickerDialog</name>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Use system language</source>
        <translation>Язык системы</translation>
    </message>
    <message>
        <source>Use system language (%1)</source>
        <translation>Язык системы (%1)</translation>
    </message>
    <message>
        <source>Follow the desktop&apos;s language</source>
        <translation>Использовать язык рабочего стола</translation>
    </message>
    <message>
        <source>Choose a language</source>
        <translation>Выберите язык</translation>
    </message>
    <message>
        <source>Tovra restarts to show the new language.</source>
        <translation>Tovra перезапустится, чтобы сменить язык.</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>Поиск языков</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Языки</translation>
    </message>
    <message>
        <source>Use language</source>
        <extracomment>Button that switches to the chosen language</extracomment>
        <translation>Выбрать</translation>
    </message>
</context>
<context>
    <name>LocationItemDelegate</name>
    <message>
        <source>%1 ms</source>
        <translation>%1 мс</translation>
    </message>
</context>
<context>
    <name>LocationsEmptyState</name>
    <message>
        <source>The Tovra service is not available.
Locations appear here as soon as it responds.</source>
        <translation>Служба Tovra недоступна.
Локации появятся здесь, как только она ответит.</translation>
    </message>
    <message>
        <source>Loading locations...</source>
        <translation>Загрузка локаций...</translation>
    </message>
    <message>
        <source>The service has no locations to offer right now.
Try Refresh in a moment.</source>
        <translation>Сейчас служба не может предложить ни одной локации.
Попробуйте обновить список чуть позже.</translation>
    </message>
    <message>
        <source>No favourites yet.
Star a location (or select it and press Space) to keep it here.</source>
        <translation>В избранном пока пусто.
Отметьте локацию звёздочкой (или выберите её и нажмите Пробел), чтобы она появилась здесь.</translation>
    </message>
    <message>
        <source>No locations in this tab.</source>
        <translation>На этой вкладке нет локаций.</translation>
    </message>
    <message>
        <source>Nothing matches “%1”.
Try a country, a city or a code such as “de”.</source>
        <translation>Ничего не найдено по запросу «%1».
Попробуйте страну, город или код, например «de».</translation>
    </message>
    <message>
        <source>Could not load the locations: %1
Press Refresh to try again.</source>
        <extracomment>%1 is the service&apos;s own error text</extracomment>
        <translation>Не удалось загрузить локации: %1
Нажмите «Обновить», чтобы попробовать снова.</translation>
    </message>
</context>
<context>
    <name>LocationsFavoriteButton</name>
    <message>
        <source>Remove from favourites</source>
        <translation>Убрать из избранного</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>Добавить в избранное</translation>
    </message>
    <message>
        <source>Select a location in the list to star it</source>
        <translation>Выберите локацию в списке, чтобы отметить её звёздочкой</translation>
    </message>
    <message>
        <source>Remove %1 from favourites</source>
        <translation>Убрать %1 из избранного</translation>
    </message>
    <message>
        <source>Add %1 to favourites</source>
        <translation>Добавить %1 в избранное</translation>
    </message>
</context>
<context>
    <name>LocationsPage</name>
    <message>
        <source>All locations</source>
        <translation>Все локации</translation>
    </message>
    <message>
        <source>Double-click a location to connect to it, or a country or city to connect to its fastest location.</source>
        <translation>Дважды щёлкните локацию, чтобы подключиться к ней, или страну либо город, чтобы подключиться к самой быстрой локации в них.</translation>
    </message>
    <message>
        <source>Search countries, cities, locations or P2P</source>
        <translation>Поиск стран, городов, локаций или P2P</translation>
    </message>
    <message>
        <source>Search locations</source>
        <translation>Поиск локаций</translation>
    </message>
    <message>
        <source>None of the locations in %1 is included in your plan.</source>
        <translation>Ни одна локация в %1 не входит в ваш тариф.</translation>
    </message>
    <message>
        <source>%1 is not included in your plan. Upgrade to use it.</source>
        <translation>%1 не входит в ваш тариф. Смените тариф, чтобы пользоваться ею.</translation>
    </message>
    <message>
        <source>Location actions</source>
        <translation>Действия с локацией</translation>
    </message>
    <message>
        <source>Connect to the fastest location</source>
        <translation>Подключиться к самой быстрой локации</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Подключиться</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>Свернуть</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>Развернуть</translation>
    </message>
    <message>
        <source>Remove from favourites</source>
        <translation>Убрать из избранного</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>Добавить в избранное</translation>
    </message>
</context>
<context>
    <name>LocationsStatusLine</name>
    <message>
        <source>Matches in every tab: %1</source>
        <translation>Найдено на всех вкладках: %1</translation>
    </message>
    <message>
        <source>Locations: %1</source>
        <translation>Локаций: %1</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Подключено к «%1»</translation>
    </message>
    <message>
        <source>Measuring latency...</source>
        <translation>Измерение задержки...</translation>
    </message>
    <message>
        <source>This list may be out of date; Refresh fetches a new one.</source>
        <translation>Список может быть устаревшим; нажмите «Обновить», чтобы получить новый.</translation>
    </message>
    <message>
        <source>Grouping by region until the service&apos;s groups arrive.</source>
        <translation>Группировка по регионам, пока служба не передаст свои группы.</translation>
    </message>
</context>
<context>
    <name>LocationsToolbar</name>
    <message>
        <source>All</source>
        <translation>Все</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Бесплатные</translation>
    </message>
    <message>
        <source>Premium</source>
        <translation>Премиум</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Избранное</translation>
    </message>
    <message>
        <source>Location tabs</source>
        <translation>Вкладки локаций</translation>
    </message>
    <message>
        <source>Sort locations</source>
        <translation>Сортировка локаций</translation>
    </message>
    <message>
        <source>Service order</source>
        <translation>По умолчанию</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Название</translation>
    </message>
    <message>
        <source>Latency</source>
        <translation>Задержка</translation>
    </message>
    <message>
        <source>Order of the locations within each group</source>
        <translation>Порядок локаций внутри каждой группы</translation>
    </message>
    <message>
        <source>Fetch the list of locations again and measure their latency</source>
        <translation>Заново получить список локаций и измерить их задержку</translation>
    </message>
    <message>
        <source>Refresh (%1s)</source>
        <extracomment>Button, disabled for %1 more seconds before the list can be fetched again</extracomment>
        <translation>Обновить (%1 с)</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>Refresh locations, possible again in %1 s</source>
        <translation>Обновить локации: снова можно через %1 с</translation>
    </message>
    <message>
        <source>Refresh locations</source>
        <translation>Обновить локации</translation>
    </message>
</context>
<context>
    <name>LocationsTreeView</name>
    <message>
        <source>Locations</source>
        <translation>Локации</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Tovra</source>
        <translation>Tovra</translation>
    </message>
    <message>
        <source>VPN</source>
        <translation>VPN</translation>
    </message>
    <message>
        <source>Operation failed</source>
        <extracomment>Shown when a request to the Tovra service failed without a reason. Word it as a user would understand it: &quot;Could not complete the action&quot;</extracomment>
        <translation>Не удалось выполнить действие</translation>
    </message>
    <message>
        <source>Settings operation failed</source>
        <extracomment>Shown when changing a setting failed without a reason. Word it as a user would understand it: &quot;Could not change the settings&quot;</extracomment>
        <translation>Не удалось изменить настройки</translation>
    </message>
    <message>
        <source>Mode operation failed</source>
        <extracomment>Shown when changing the mode failed without a reason. Word it as a user would understand it: &quot;Could not change the mode&quot;</extracomment>
        <translation>Не удалось сменить режим</translation>
    </message>
</context>
<context>
    <name>ModeChoiceCard</name>
    <message>
        <source>Tovra picks the protocol that works best here.</source>
        <translation>Tovra сама выбирает протокол, который лучше всего работает в вашей сети.</translation>
    </message>
    <message>
        <source>A fast, modern tunnel for all your traffic.</source>
        <translation>Быстрый современный туннель для всего трафика.</translation>
    </message>
    <message>
        <source>All traffic goes through the TovraVPN tunnel.</source>
        <translation>Весь трафик идёт через туннель TovraVPN.</translation>
    </message>
    <message>
        <source>The tunnel by default; chosen regions and sites go direct.</source>
        <translation>По умолчанию через туннель; выбранные регионы и сайты — напрямую.</translation>
    </message>
    <message>
        <source>No tunnel: apps that use the local proxy reach the internet through Tovra.</source>
        <translation>Без туннеля: приложения, использующие локальный прокси, выходят в интернет через Tovra.</translation>
    </message>
    <message>
        <source>The local proxy, with chosen regions and sites going direct.</source>
        <translation>Локальный прокси; выбранные регионы и сайты — напрямую.</translation>
    </message>
    <message>
        <source>Applying…</source>
        <translation>Применение…</translation>
    </message>
    <message>
        <source>Kill Switch needs a VPN mode: pick Auto, WireGuard or TovraVPN to turn it on.</source>
        <translation>Для Kill Switch нужен режим VPN: выберите «Авто», WireGuard или TovraVPN, чтобы включить его.</translation>
    </message>
    <message>
        <source>Choose a mode</source>
        <translation>Выберите режим</translation>
    </message>
    <message>
        <source>The current mode shows once the Tovra service answers.</source>
        <translation>Текущий режим появится, когда ответит служба Tovra.</translation>
    </message>
    <message>
        <source>Current mode: %1. This version of Tovra does not know it; choose one of the modes above to replace it.</source>
        <translation>Текущий режим: %1. Эта версия Tovra его не знает; выберите один из режимов выше вместо него.</translation>
    </message>
</context>
<context>
    <name>ModePage</name>
    <message>
        <source>Auto</source>
        <translation>Авто</translation>
    </message>
    <message>
        <source>WireGuard</source>
        <translation>WireGuard</translation>
    </message>
    <message>
        <source>TovraVPN Split</source>
        <translation>TovraVPN (раздельный)</translation>
    </message>
    <message>
        <source>TovraVPN Global</source>
        <translation>TovraVPN (глобальный)</translation>
    </message>
    <message>
        <source>Tovra Proxy Split</source>
        <translation>Tovra Proxy (раздельный)</translation>
    </message>
    <message>
        <source>Tovra Proxy Global</source>
        <translation>Tovra Proxy (глобальный)</translation>
    </message>
    <message>
        <source>Routing mode</source>
        <translation>Режим маршрутизации</translation>
    </message>
    <message>
        <source>Choose how your traffic is routed and which sites bypass the tunnel.</source>
        <translation>Выберите, как направляется ваш трафик и какие сайты идут в обход туннеля.</translation>
    </message>
</context>
<context>
    <name>NavigationSidebar</name>
    <message>
        <source>Locations</source>
        <translation>Локации</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Режим</translation>
    </message>
    <message>
        <source>VPN</source>
        <translation>VPN</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Аккаунт</translation>
    </message>
</context>
<context>
    <name>NetworkOptionsCard</name>
    <message>
        <source>Local network</source>
        <translation>Локальная сеть</translation>
    </message>
    <message>
        <source>System proxy</source>
        <translation>Системный прокси</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Сеть</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Local network option: devices nearby are reached outside the tunnel</extracomment>
        <translation>Напрямую</translation>
    </message>
    <message>
        <source>Printers, shares and other devices on your network stay reachable</source>
        <translation>Принтеры, общие папки и другие устройства в вашей сети остаются доступными</translation>
    </message>
    <message>
        <source>Protected</source>
        <extracomment>Local network option: local traffic goes through the tunnel like the rest</extracomment>
        <translation>Защищённая</translation>
    </message>
    <message>
        <source>Local network traffic is protected like the rest</source>
        <translation>Трафик локальной сети защищён, как и весь остальной</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>System proxy option: the desktop proxy settings are left alone</extracomment>
        <translation>Выкл.</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings are left alone</source>
        <translation>Настройки прокси в системе не меняются</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>System proxy option: the desktop proxy settings point at Tovra</extracomment>
        <translation>Вкл.</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings point at Tovra</source>
        <translation>Настройки прокси в системе указывают на Tovra</translation>
    </message>
    <message>
        <source>Lock</source>
        <extracomment>System proxy option, a state rather than an action: the desktop proxy settings point at Tovra and other programs cannot change them</extracomment>
        <translation>Закреплён</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings point at Tovra and are kept so</source>
        <translation>Настройки прокси в системе указывают на Tovra, и их нельзя изменить</translation>
    </message>
    <message>
        <source>Whether devices on your local network stay reachable while Tovra routes your traffic.</source>
        <translation>Остаются ли устройства в локальной сети доступными, пока Tovra направляет ваш трафик.</translation>
    </message>
    <message>
        <source>Point the desktop&apos;s proxy settings at Tovra, or also keep other programs from changing them.</source>
        <translation>Направить системные настройки прокси на Tovra или также запретить другим программам их менять.</translation>
    </message>
</context>
<context>
    <name>NetworkSection</name>
    <message>
        <source>Network</source>
        <translation>Сеть</translation>
    </message>
    <message>
        <source>SOCKS5 listener</source>
        <translation>SOCKS5-сервер</translation>
    </message>
    <message>
        <source>HTTP listener</source>
        <translation>HTTP-сервер</translation>
    </message>
    <message>
        <source>Apply listeners</source>
        <extracomment>Button that applies the SOCKS5 and HTTP listen addresses typed above</extracomment>
        <translation>Применить</translation>
    </message>
    <message>
        <source>Local DNS servers</source>
        <translation>Локальные DNS-серверы</translation>
    </message>
    <message>
        <source>For example 192.168.1.1, ::1</source>
        <translation>Например: 192.168.1.1, ::1</translation>
    </message>
    <message>
        <source>Save servers</source>
        <extracomment>Button that saves the local DNS servers typed in the field</extracomment>
        <translation>Сохранить серверы</translation>
    </message>
    <message>
        <source>Clear servers</source>
        <extracomment>Button that empties the list of local DNS servers</extracomment>
        <translation>Очистить серверы</translation>
    </message>
    <message>
        <source>Reset split DNS</source>
        <extracomment>Button that puts the split DNS settings back to their defaults</extracomment>
        <translation>Сбросить раздельный DNS</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>System proxy choice: the desktop proxy settings are left alone</extracomment>
        <translation>Выкл.</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>System proxy choice: the desktop proxy settings point at Tovra</extracomment>
        <translation>Вкл.</translation>
    </message>
    <message>
        <source>On and locked</source>
        <translation>Вкл. и закреплено</translation>
    </message>
    <message>
        <source>System proxy</source>
        <translation>Системный прокси</translation>
    </message>
    <message>
        <source>Points the desktop&apos;s proxy settings at Tovra; locked keeps other programs from changing them.</source>
        <translation>Направляет системные настройки прокси на Tovra; при закреплении другие программы не смогут их изменить.</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Local network choice: devices nearby are reached outside the tunnel</extracomment>
        <translation>Напрямую</translation>
    </message>
    <message>
        <source>Protected</source>
        <extracomment>Local network choice: local traffic goes through the tunnel like the rest</extracomment>
        <translation>Защищённая</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Локальная сеть</translation>
    </message>
    <message>
        <source>Direct reaches devices nearby outside the tunnel; protected sends everything through it.</source>
        <translation>«Напрямую» — устройства поблизости доступны вне туннеля; «Защищённая» — всё идёт через туннель.</translation>
    </message>
    <message>
        <source>SOCKS5</source>
        <translation>SOCKS5</translation>
    </message>
    <message>
        <source>HTTP</source>
        <translation>HTTP</translation>
    </message>
    <message>
        <source>Local proxy listeners</source>
        <translation>Локальные прокси-серверы</translation>
    </message>
    <message>
        <source>Addresses where the daemon accepts proxy connections, as host:port. Leave a field empty to close that listener.</source>
        <translation>Адреса, на которых служба принимает прокси-подключения, в виде хост:порт. Оставьте поле пустым, чтобы закрыть этот порт.</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Автоматически</translation>
    </message>
    <message>
        <source>Local DNS</source>
        <translation>Локальный DNS</translation>
    </message>
    <message>
        <source>Remote DNS</source>
        <translation>Удалённый DNS</translation>
    </message>
    <message>
        <source>Split DNS</source>
        <translation>Раздельный DNS</translation>
    </message>
    <message>
        <source>Which resolver answers for names that stay outside the tunnel.</source>
        <translation>Какой DNS-сервер отвечает за имена, которые остаются вне туннеля.</translation>
    </message>
    <message>
        <source>IP addresses of the resolvers for local names, separated by commas.</source>
        <translation>IP-адреса DNS-серверов для локальных имён через запятую.</translation>
    </message>
    <message>
        <source>In effect: %1</source>
        <translation>Действует: %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>In effect: %1, servers %2</source>
        <translation>Действует: %1, серверы: %2</translation>
    </message>
    <message>
        <source>(from %1)</source>
        <translation>(из %1)</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Неизвестно</translation>
    </message>
    <message>
        <source>(from the system settings)</source>
        <translation>(из настроек системы)</translation>
    </message>
    <message>
        <source>(from your list)</source>
        <translation>(из вашего списка)</translation>
    </message>
</context>
<context>
    <name>NotificationHost</name>
    <message>
        <source>Dismiss notification</source>
        <translation>Закрыть уведомление</translation>
    </message>
    <message>
        <source>Notification: %1</source>
        <translation>Уведомление: %1</translation>
    </message>
</context>
<context>
    <name>QCoreApplication::ShellText</name>
    <message>
        <source>Custom split rules unchanged</source>
        <translation>Свои правила разделения не изменились</translation>
    </message>
</context>
<context>
    <name>QCoreApplication::TrayMenuText</name>
    <message>
        <source>Connect</source>
        <translation>Подключиться</translation>
    </message>
</context>
<context>
    <name>QuickEntryField</name>
    <message>
        <source>Search for a country, city or location</source>
        <translation>Поиск страны, города или локации</translation>
    </message>
    <message>
        <source>Quick connect search</source>
        <translation>Поиск для быстрого подключения</translation>
    </message>
</context>
<context>
    <name>QuickEntryModel</name>
    <message>
        <source>Recent searches</source>
        <translation>Недавние запросы</translation>
    </message>
    <message>
        <source>Recent locations</source>
        <translation>Недавние локации</translation>
    </message>
    <message>
        <source>Type a country, city or location name</source>
        <translation>Введите страну, город или название локации</translation>
    </message>
    <message>
        <source>No locations match “%1”</source>
        <translation>Нет локаций по запросу «%1»</translation>
    </message>
    <message>
        <source>%1  ·  %2</source>
        <translation>%1  ·  %2</translation>
    </message>
</context>
<context>
    <name>QuickEntryPopup</name>
    <message>
        <source>Search results</source>
        <translation>Результаты поиска</translation>
    </message>
</context>
<context>
    <name>SettingsCard</name>
    <message>
        <source>Unknown</source>
        <translation>Неизвестно</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Применение настроек...</translation>
    </message>
    <message>
        <source>Changes take effect once the Tovra service confirms them.</source>
        <translation>Изменения вступят в силу, когда их подтвердит служба Tovra.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Settings can be changed again once the Tovra service answers.</source>
        <translation>Настройки снова можно будет менять, когда ответит служба Tovra.</translation>
    </message>
    <message>
        <source>Waiting for the Tovra service...</source>
        <translation>Ожидание службы Tovra...</translation>
    </message>
</context>
<context>
    <name>SettingsRow</name>
    <message>
        <source>%1: %2</source>
        <comment>row title: help text</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>SettingsValidator</name>
    <message>
        <source>Add a port: host:port, for example 127.0.0.1:1080.</source>
        <translation>Укажите порт: хост:порт, например 127.0.0.1:1080.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an IPv6 address.</source>
        <translation>«%1» — не адрес IPv6.</translation>
    </message>
    <message>
        <source>Write an IPv6 address in brackets: [::1]:1080.</source>
        <translation>Адрес IPv6 указывается в квадратных скобках: [::1]:1080.</translation>
    </message>
    <message>
        <source>Add a host before the port: host:port.</source>
        <translation>Укажите хост перед портом: хост:порт.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a host name or IP address.</source>
        <translation>«%1» — не имя хоста и не IP-адрес.</translation>
    </message>
    <message>
        <source>Add a port after the colon: host:port.</source>
        <translation>Укажите порт после двоеточия: хост:порт.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>Порт должен быть числом от 1 до 65535.</translation>
    </message>
    <message>
        <source>Enter an API URL, or reset it to the default.</source>
        <translation>Введите URL API или сбросьте его на стандартный.</translation>
    </message>
    <message>
        <source>The API URL must start with http:// or https://.</source>
        <translation>URL API должен начинаться с http:// или https://.</translation>
    </message>
    <message>
        <source>The API URL needs a host, for example https://api.example.com.</source>
        <translation>В URL API нужен хост, например https://api.example.com.</translation>
    </message>
    <message>
        <source>Enter at least one DNS server, or clear the list.</source>
        <translation>Укажите хотя бы один DNS-сервер или очистите список.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an IP address.</source>
        <translation>«%1» — не IP-адрес.</translation>
    </message>
</context>
<context>
    <name>SplitOptionsCard</name>
    <message>
        <source>Choose TovraVPN Split or Tovra Proxy Split to send some traffic direct: by region, by the GFWList or by your own rules.</source>
        <translation>Выберите TovraVPN (раздельный) или Tovra Proxy (раздельный), чтобы направлять часть трафика напрямую: по регионам, по GFWList или по своим правилам.</translation>
    </message>
    <message>
        <source>Default route</source>
        <translation>Маршрут по умолчанию</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Default route choice: traffic goes straight to the internet, outside the tunnel or proxy</extracomment>
        <translation>Напрямую</translation>
    </message>
    <message>
        <source>Everything not chosen below goes direct</source>
        <translation>Всё, что не выбрано ниже, идёт напрямую</translation>
    </message>
    <message>
        <source>Choose…</source>
        <extracomment>Button that opens the region picker</extracomment>
        <translation>Выбрать…</translation>
    </message>
    <message>
        <source>Choose regions</source>
        <translation>Выбрать регионы</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>Регионы</translation>
    </message>
    <message>
        <source>Custom split rules</source>
        <translation>Свои правила разделения</translation>
    </message>
    <message>
        <source>Edit rules…</source>
        <extracomment>Button that opens the custom split rules editor</extracomment>
        <translation>Изменить правила…</translation>
    </message>
    <message>
        <source>Edit custom split rules</source>
        <translation>Изменить свои правила разделения</translation>
    </message>
    <message>
        <source>Split routing</source>
        <translation>Раздельная маршрутизация</translation>
    </message>
    <message>
        <source>TovraVPN Split options</source>
        <translation>Параметры TovraVPN (раздельный)</translation>
    </message>
    <message>
        <source>Tovra Proxy Split options</source>
        <translation>Параметры Tovra Proxy (раздельный)</translation>
    </message>
    <message>
        <source>Tunnel</source>
        <translation>Туннель</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Прокси</translation>
    </message>
    <message>
        <source>Everything not chosen below goes through the tunnel</source>
        <translation>Всё, что не выбрано ниже, идёт через туннель</translation>
    </message>
    <message>
        <source>Everything not chosen below goes through the proxy</source>
        <translation>Всё, что не выбрано ниже, идёт через прокси</translation>
    </message>
    <message>
        <source>Traffic goes direct unless a region, the GFWList or a rule says otherwise.</source>
        <translation>Трафик идёт напрямую, если регион, GFWList или правило не указывают иначе.</translation>
    </message>
    <message>
        <source>Traffic goes through the tunnel unless a region or a rule sends it direct.</source>
        <translation>Трафик идёт через туннель, если регион или правило не направляют его напрямую.</translation>
    </message>
    <message>
        <source>Traffic goes through the proxy unless a region or a rule sends it direct.</source>
        <translation>Трафик идёт через прокси, если регион или правило не направляют его напрямую.</translation>
    </message>
    <message>
        <source>No regions chosen.</source>
        <translation>Регионы не выбраны.</translation>
    </message>
    <message>
        <source>Go direct: %1</source>
        <translation>Напрямую: %1</translation>
    </message>
    <message>
        <source>Go through the tunnel: %1</source>
        <translation>Через туннель: %1</translation>
    </message>
    <message>
        <source>Go through the proxy: %1</source>
        <translation>Через прокси: %1</translation>
    </message>
    <message>
        <source>GFWList → Tunnel</source>
        <translation>GFWList → Туннель</translation>
    </message>
    <message>
        <source>GFWList → Proxy</source>
        <translation>GFWList → Прокси</translation>
    </message>
    <message>
        <source>Sites on the GFWList always go through the tunnel.</source>
        <translation>Сайты из GFWList всегда идут через туннель.</translation>
    </message>
    <message>
        <source>Sites on the GFWList always go through the proxy.</source>
        <translation>Сайты из GFWList всегда идут через прокси.</translation>
    </message>
    <message>
        <source>Your own domain and address lists.</source>
        <translation>Ваши собственные списки доменов и адресов.</translation>
    </message>
    <message>
        <source>Your own domain and address lists. Rules held: %1.</source>
        <translation>Ваши собственные списки доменов и адресов. Правил: %1.</translation>
    </message>
</context>
<context>
    <name>TovraAppShell</name>
    <message>
        <source>Could not sign in</source>
        <translation>Не удалось войти</translation>
    </message>
    <message>
        <source>Could not sign out</source>
        <translation>Не удалось выйти</translation>
    </message>
    <message>
        <source>Could not load account</source>
        <translation>Не удалось загрузить аккаунт</translation>
    </message>
    <message>
        <source>Could not open renewal page</source>
        <translation>Не удалось открыть страницу продления</translation>
    </message>
    <message>
        <source>Refreshing locations...</source>
        <translation>Обновление локаций...</translation>
    </message>
    <message>
        <source>A locations update is already in progress</source>
        <translation>Локации уже обновляются</translation>
    </message>
    <message>
        <source>Could not update favorite</source>
        <translation>Не удалось изменить избранное</translation>
    </message>
    <message>
        <source>Could not refresh locations</source>
        <translation>Не удалось обновить локации</translation>
    </message>
    <message>
        <source>Could not refresh location groups</source>
        <translation>Не удалось обновить группы локаций</translation>
    </message>
    <message>
        <source>Locations updated</source>
        <translation>Локации обновлены</translation>
    </message>
    <message>
        <source>Could not connect to this location</source>
        <translation>Не удалось подключиться к этой локации</translation>
    </message>
    <message>
        <source>Could not connect</source>
        <translation>Не удалось подключиться</translation>
    </message>
    <message>
        <source>Could not disconnect</source>
        <translation>Не удалось отключиться</translation>
    </message>
    <message>
        <source>Could not update language</source>
        <translation>Не удалось сменить язык</translation>
    </message>
    <message>
        <source>Restarting Tovra to apply the interface language.</source>
        <translation>Tovra перезапускается, чтобы сменить язык интерфейса.</translation>
    </message>
    <message>
        <source>Could not restart Tovra. Please restart the app manually.</source>
        <translation>Не удалось перезапустить Tovra. Перезапустите приложение вручную.</translation>
    </message>
    <message>
        <source>Could not switch mode</source>
        <translation>Не удалось сменить режим</translation>
    </message>
    <message>
        <source>Could not update local network</source>
        <translation>Не удалось изменить настройку локальной сети</translation>
    </message>
    <message>
        <source>Could not update system proxy</source>
        <translation>Не удалось изменить системный прокси</translation>
    </message>
    <message>
        <source>Please wait for the current operation to finish</source>
        <translation>Дождитесь завершения текущей операции</translation>
    </message>
    <message>
        <source>Pick a VPN mode to turn on Kill Switch</source>
        <translation>Выберите режим VPN, чтобы включить Kill Switch</translation>
    </message>
    <message>
        <source>Could not update kill switch</source>
        <translation>Не удалось изменить Kill Switch</translation>
    </message>
    <message>
        <source>Custom split rules updated, but rules could not be refreshed</source>
        <translation>Свои правила разделения обновлены, но их не удалось перечитать</translation>
    </message>
    <message>
        <source>Could not load split rules</source>
        <translation>Не удалось загрузить правила разделения</translation>
    </message>
    <message>
        <source>Could not import split rules</source>
        <translation>Не удалось импортировать правила разделения</translation>
    </message>
    <message numerus="yes">
        <source>Custom split rules updated (%n rule(s))</source>
        <translation>
            <numerusform>Свои правила разделения обновлены (%n правило)</numerusform>
            <numerusform>Свои правила разделения обновлены (%n правила)</numerusform>
            <numerusform>Свои правила разделения обновлены (%n правил)</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not load config paths</source>
        <translation>Не удалось загрузить пути конфигурации</translation>
    </message>
    <message>
        <source>Could not update API URL</source>
        <translation>Не удалось изменить URL API</translation>
    </message>
    <message>
        <source>API URL reset to default</source>
        <translation>URL API сброшен на стандартный</translation>
    </message>
    <message>
        <source>API URL validated and saved</source>
        <translation>URL API проверен и сохранён</translation>
    </message>
    <message>
        <source>API URL saved but not validated</source>
        <translation>URL API сохранён, но не проверен</translation>
    </message>
    <message>
        <source>Could not update auto connect</source>
        <translation>Не удалось изменить автоподключение</translation>
    </message>
    <message>
        <source>Could not update proxy listen address</source>
        <translation>Не удалось изменить адрес прослушивания прокси</translation>
    </message>
    <message>
        <source>Proxy listen address saved for reconnect</source>
        <translation>Адрес прослушивания прокси сохранён и вступит в силу при переподключении</translation>
    </message>
    <message>
        <source>Proxy listen address updated</source>
        <translation>Адрес прослушивания прокси изменён</translation>
    </message>
    <message>
        <source>Could not update split DNS</source>
        <translation>Не удалось изменить раздельный DNS</translation>
    </message>
    <message>
        <source>Split DNS updated</source>
        <translation>Раздельный DNS изменён</translation>
    </message>
    <message>
        <source>Repair failed</source>
        <translation>Не удалось восстановить</translation>
    </message>
    <message>
        <source>Repair completed</source>
        <translation>Восстановление завершено</translation>
    </message>
    <message>
        <source>Checking Tovra service compatibility...</source>
        <translation>Проверка совместимости службы Tovra...</translation>
    </message>
    <message>
        <source>Tovra GUI and daemon are incompatible. Update Tovra before continuing.</source>
        <translation>Приложение и служба Tovra несовместимы. Обновите Tovra, чтобы продолжить.</translation>
    </message>
    <message>
        <source>Could not load version</source>
        <translation>Не удалось получить версию</translation>
    </message>
    <message>
        <source>GUI version is unavailable</source>
        <translation>Версия приложения недоступна</translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation>Не удалось проверить обновления</translation>
    </message>
    <message>
        <source>Tovra is up to date</source>
        <translation>Установлена последняя версия Tovra</translation>
    </message>
    <message>
        <source>A required Tovra update is being checked before connecting.</source>
        <translation>Перед подключением проверяется обязательное обновление Tovra.</translation>
    </message>
    <message>
        <source>Finishing the latest update check before starting the download...</source>
        <translation>Завершение проверки обновлений перед началом скачивания...</translation>
    </message>
    <message>
        <source>Update information is unavailable. Check for updates again.</source>
        <translation>Сведения об обновлении недоступны. Проверьте обновления ещё раз.</translation>
    </message>
    <message>
        <source>Canceling...</source>
        <translation>Отмена...</translation>
    </message>
    <message>
        <source>Could not confirm that the download started. Checking its status...</source>
        <translation>Не удалось подтвердить начало скачивания. Проверка состояния...</translation>
    </message>
    <message>
        <source>Could not start the update download</source>
        <translation>Не удалось начать скачивание обновления</translation>
    </message>
    <message>
        <source>Could not confirm cancellation. Retrying...</source>
        <translation>Не удалось подтвердить отмену. Повторная попытка...</translation>
    </message>
    <message>
        <source>Could not read download progress. Retrying...</source>
        <translation>Не удалось получить ход скачивания. Повторная попытка...</translation>
    </message>
    <message>
        <source>The download completed before it could be canceled. The installer was not opened.</source>
        <translation>Скачивание завершилось раньше, чем его удалось отменить. Установщик не открывался.</translation>
    </message>
    <message>
        <source>The update was downloaded, but the installer could not be opened.</source>
        <translation>Обновление скачано, но открыть установщик не удалось.</translation>
    </message>
    <message>
        <source>The download belongs to a different update release. Check for updates again.</source>
        <translation>Скачанный файл относится к другому выпуску обновления. Проверьте обновления ещё раз.</translation>
    </message>
    <message>
        <source>Could not load kill switch</source>
        <translation>Не удалось загрузить Kill Switch</translation>
    </message>
    <message>
        <source>Could not load API URL</source>
        <translation>Не удалось загрузить URL API</translation>
    </message>
    <message>
        <source>Could not load split DNS</source>
        <translation>Не удалось загрузить раздельный DNS</translation>
    </message>
    <message>
        <source>Could not reach the Tovra service</source>
        <translation>Не удалось связаться со службой Tovra</translation>
    </message>
    <message>
        <source>Could not load languages</source>
        <translation>Не удалось загрузить языки</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Проверка обновлений...</translation>
    </message>
    <message>
        <source>Tovra %1 is available</source>
        <translation>Доступна Tovra %1</translation>
    </message>
    <message>
        <source>A required Tovra update must be installed before connecting.</source>
        <translation>Перед подключением нужно установить обязательное обновление Tovra.</translation>
    </message>
    <message>
        <source>The Tovra service is not available</source>
        <translation>Служба Tovra недоступна</translation>
    </message>
    <message>
        <source>The Tovra service did not answer</source>
        <translation>Служба Tovra не ответила</translation>
    </message>
    <message>
        <source>A required Tovra update must be installed before connecting</source>
        <translation>Перед подключением нужно установить обязательное обновление Tovra</translation>
    </message>
    <message>
        <source>Another connection request replaced this one</source>
        <translation>Этот запрос заменён другим запросом на подключение</translation>
    </message>
</context>
<context>
    <name>TovraRegionPickerDialog</name>
    <message>
        <source>Save</source>
        <extracomment>Button</extracomment>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Choose regions</source>
        <translation>Выбор регионов</translation>
    </message>
    <message>
        <source>Search countries</source>
        <translation>Поиск стран</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Страны</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button</extracomment>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes direct, outside the tunnel. Everything else goes through the tunnel.</source>
        <translation>Трафик в отмеченные регионы идёт напрямую, вне туннеля. Всё остальное идёт через туннель.</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes direct, not through the proxy. Everything else goes through the proxy.</source>
        <translation>Трафик в отмеченные регионы идёт напрямую, минуя прокси. Всё остальное идёт через прокси.</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes through the tunnel. Everything else goes direct.</source>
        <translation>Трафик в отмеченные регионы идёт через туннель. Всё остальное идёт напрямую.</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes through the proxy. Everything else goes direct.</source>
        <translation>Трафик в отмеченные регионы идёт через прокси. Всё остальное идёт напрямую.</translation>
    </message>
    <message>
        <source>Checked: %1</source>
        <translation>Отмечено: %1</translation>
    </message>
    <message>
        <source>No country matches “%1”.</source>
        <translation>Нет стран по запросу «%1».</translation>
    </message>
</context>
<context>
    <name>TovraSplitRulesEditorDialog</name>
    <message>
        <source>Rule list</source>
        <translation>Список правил</translation>
    </message>
    <message>
        <source>Import</source>
        <extracomment>Button that replaces the chosen rule list with the lines typed</extracomment>
        <translation>Импорт</translation>
    </message>
    <message>
        <source>Custom split rules</source>
        <translation>Свои правила разделения</translation>
    </message>
    <message>
        <source>One domain, IP address or CIDR range per line, such as example.org, 203.0.113.7 or 10.0.0.0/8. Lines starting with # are comments.</source>
        <translation>По одному домену, IP-адресу или диапазону CIDR в строке, например example.org, 203.0.113.7 или 10.0.0.0/8. Строки, начинающиеся с #, считаются комментариями.</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Правила</translation>
    </message>
    <message>
        <source>example.org
*.example.net
203.0.113.0/24</source>
        <translation>example.org
*.example.net
203.0.113.0/24</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button</extracomment>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Replace the chosen list with these rules</source>
        <translation>Заменить выбранный список этими правилами</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Name of the rule list whose sites and addresses go straight to the internet</extracomment>
        <translation>Напрямую</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Прокси</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Блокировка</translation>
    </message>
    <message>
        <source>Sites and addresses that always go direct</source>
        <translation>Сайты и адреса, которые всегда идут напрямую</translation>
    </message>
    <message>
        <source>Sites and addresses that always go through Tovra</source>
        <translation>Сайты и адреса, которые всегда идут через Tovra</translation>
    </message>
    <message>
        <source>Sites and addresses that are blocked</source>
        <translation>Заблокированные сайты и адреса</translation>
    </message>
    <message>
        <source>Loading rules…</source>
        <translation>Загрузка правил…</translation>
    </message>
    <message>
        <source>The Tovra service reports no rule lists.</source>
        <translation>Служба Tovra не сообщила ни одного списка правил.</translation>
    </message>
    <message>
        <source>Rules are not loaded yet.</source>
        <translation>Правила ещё не загружены.</translation>
    </message>
    <message>
        <source>Rules: %1 · Lines: %2</source>
        <translation>Правил: %1 · Строк: %2</translation>
    </message>
    <message>
        <source>not imported</source>
        <translation>не импортировано</translation>
    </message>
    <message>
        <source>importing…</source>
        <translation>импорт…</translation>
    </message>
    <message>
        <source>Nothing was imported. Fix these lines first:</source>
        <translation>Ничего не импортировано. Сначала исправьте эти строки:</translation>
    </message>
    <message>
        <source>Line %1: “%2” is not a domain, IP address or CIDR range.</source>
        <translation>Строка %1: «%2» — не домен, не IP-адрес и не диапазон CIDR.</translation>
    </message>
    <message>
        <source>… Bad lines in all: %1.</source>
        <translation>… Всего ошибочных строк: %1.</translation>
    </message>
</context>
<context>
    <name>TrayMenuText</name>
    <message>
        <source>Tovra: connecting...</source>
        <translation>Tovra: подключение...</translation>
    </message>
    <message>
        <source>Tovra: connecting %1...</source>
        <translation>Tovra: подключение к «%1»...</translation>
    </message>
    <message>
        <source>[ %1 ]</source>
        <translation>[ %1 ]</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Ошибка: %1</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN split...</source>
        <extracomment>Changing the default route of the TovraVPN Split mode; name the mode as the Mode page does</extracomment>
        <translation>Tovra: обновление раздельного режима TovraVPN...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN regions...</source>
        <translation>Tovra: обновление регионов TovraVPN...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN GFWList...</source>
        <translation>Tovra: обновление GFWList для TovraVPN...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN custom rules...</source>
        <translation>Tovra: обновление своих правил TovraVPN...</translation>
    </message>
    <message>
        <source>Tovra: updating Tovra Proxy Split...</source>
        <translation>Tovra: обновление раздельного режима Tovra Proxy...</translation>
    </message>
    <message>
        <source>Tovra: updating Tovra Proxy regions...</source>
        <translation>Tovra: обновление регионов Tovra Proxy...</translation>
    </message>
    <message>
        <source>Tovra: updating Tovra Proxy GFWList...</source>
        <translation>Tovra: обновление GFWList для Tovra Proxy...</translation>
    </message>
    <message>
        <source>operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when a request to the service failed without a reason. Word it as a user would understand it: &quot;could not complete the action&quot;</extracomment>
        <translation>не удалось выполнить действие</translation>
    </message>
    <message>
        <source>log directory</source>
        <translation>папка журналов</translation>
    </message>
    <message>
        <source>missing %1</source>
        <translation>%1: не указана</translation>
    </message>
    <message>
        <source>%1 does not exist: %2</source>
        <translation>%1 не существует: %2</translation>
    </message>
    <message>
        <source>could not open %1: %2</source>
        <translation>%1 не открывается: %2</translation>
    </message>
    <message>
        <source>Current: loading...</source>
        <translation>Текущая: загрузка...</translation>
    </message>
    <message>
        <source>Refresh Nodes</source>
        <translation>Обновить локации</translation>
    </message>
    <message>
        <source>Loading nodes...</source>
        <translation>Загрузка локаций...</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Авто</translation>
    </message>
    <message>
        <source>WireGuard</source>
        <translation>WireGuard</translation>
    </message>
    <message>
        <source>Mode: TovraVPN</source>
        <translation>Режим: TovraVPN</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>Глобальный</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Раздельный</translation>
    </message>
    <message>
        <source>Split Options</source>
        <translation>Параметры разделения</translation>
    </message>
    <message>
        <source>Default: Tunnel</source>
        <translation>По умолчанию: туннель</translation>
    </message>
    <message>
        <source>Default: Direct</source>
        <translation>По умолчанию: напрямую</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>Регионы</translation>
    </message>
    <message>
        <source>GFWList -&gt; Tunnel</source>
        <translation>GFWList -&gt; Туннель</translation>
    </message>
    <message>
        <source>Custom Split Rules</source>
        <translation>Свои правила разделения</translation>
    </message>
    <message>
        <source>Mode: Tovra Proxy</source>
        <translation>Режим: Tovra Proxy</translation>
    </message>
    <message>
        <source>Default: Proxy</source>
        <translation>По умолчанию: прокси</translation>
    </message>
    <message>
        <source>GFWList -&gt; Proxy</source>
        <translation>GFWList -&gt; Прокси</translation>
    </message>
    <message>
        <source>Tovra: starting...</source>
        <translation>Tovra: запуск...</translation>
    </message>
    <message>
        <source>Daemon: checking...</source>
        <translation>Служба: проверка...</translation>
    </message>
    <message>
        <source>Open Tovra...</source>
        <translation>Открыть Tovra...</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Подключиться</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Отключиться</translation>
    </message>
    <message>
        <source>Node / Location</source>
        <translation>Локация</translation>
    </message>
    <message>
        <source>System Proxy</source>
        <translation>Системный прокси</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>System proxy menu option and value: the desktop proxy settings are left alone</extracomment>
        <translation>Выкл.</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>System proxy menu option and value: the desktop proxy settings point at Tovra</extracomment>
        <translation>Вкл.</translation>
    </message>
    <message>
        <source>Lock</source>
        <extracomment>System proxy menu option and value, a state rather than an action: the desktop proxy settings point at Tovra and other programs cannot change them</extracomment>
        <translation>Закреплён</translation>
    </message>
    <message>
        <source>Local Network</source>
        <translation>Локальная сеть</translation>
    </message>
    <message>
        <source>LAN Access</source>
        <translation>Доступ к локальной сети</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Local network menu option and value: devices nearby are reached outside the tunnel. Also the route in &quot;Regions use %1: %2&quot;</extracomment>
        <translation>Напрямую</translation>
    </message>
    <message>
        <source>Protected</source>
        <extracomment>Local network menu option and value: local traffic goes through the tunnel like the rest</extracomment>
        <translation>Защищённая</translation>
    </message>
    <message>
        <source>Kill Switch</source>
        <translation>Kill Switch</translation>
    </message>
    <message>
        <source>Refresh Status</source>
        <translation>Обновить статус</translation>
    </message>
    <message>
        <source>Open Logs</source>
        <translation>Открыть журналы</translation>
    </message>
    <message>
        <source>Account: checking...</source>
        <translation>Аккаунт: проверка...</translation>
    </message>
    <message>
        <source>Logout</source>
        <translation>Выйти из аккаунта</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Tovra: daemon unavailable</source>
        <translation>Tovra: служба недоступна</translation>
    </message>
    <message>
        <source>daemon unavailable</source>
        <translation>служба недоступна</translation>
    </message>
    <message>
        <source>Account: unavailable</source>
        <translation>Аккаунт: недоступен</translation>
    </message>
    <message>
        <source>Tovra - daemon unavailable</source>
        <translation>Tovra — служба недоступна</translation>
    </message>
    <message>
        <source>Tovra: switching to auto...</source>
        <translation>Tovra: переход в режим «Авто»...</translation>
    </message>
    <message>
        <source>Tovra: switching to WireGuard...</source>
        <translation>Tovra: переход в режим WireGuard...</translation>
    </message>
    <message>
        <source>Tovra: switching to TovraVPN...</source>
        <translation>Tovra: переход в режим TovraVPN...</translation>
    </message>
    <message>
        <source>Tovra: switching TovraVPN split...</source>
        <extracomment>Switching to the TovraVPN Split mode; name the mode as the Mode page does</extracomment>
        <translation>Tovra: переход в режим TovraVPN (раздельный)...</translation>
    </message>
    <message>
        <source>Tovra: switching to Tovra Proxy...</source>
        <translation>Tovra: переход в режим Tovra Proxy...</translation>
    </message>
    <message>
        <source>Tovra: switching to Tovra Proxy Split...</source>
        <translation>Tovra: переход в режим Tovra Proxy (раздельный)...</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>System Proxy: %1</source>
        <translation>Системный прокси: %1</translation>
    </message>
    <message>
        <source>Local Network: %1</source>
        <translation>Локальная сеть: %1</translation>
    </message>
    <message>
        <source>Tunnel</source>
        <translation>Туннель</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Прокси</translation>
    </message>
    <message>
        <source>Regions use %1: %2</source>
        <translation>Регионы (%1): %2</translation>
    </message>
    <message>
        <source>Could not refresh nodes</source>
        <translation>Не удалось обновить локации</translation>
    </message>
    <message>
        <source>Could not load nodes</source>
        <translation>Не удалось загрузить локации</translation>
    </message>
    <message>
        <source>Could not refresh node groups</source>
        <translation>Не удалось обновить группы локаций</translation>
    </message>
    <message>
        <source>Could not load node groups</source>
        <translation>Не удалось загрузить группы локаций</translation>
    </message>
    <message>
        <source>Refreshing nodes...</source>
        <translation>Обновление локаций...</translation>
    </message>
    <message>
        <source>Nodes not loaded</source>
        <translation>Локации не загружены</translation>
    </message>
    <message>
        <source>No cached nodes</source>
        <translation>Нет сохранённых локаций</translation>
    </message>
    <message>
        <source>No nodes</source>
        <translation>Нет локаций</translation>
    </message>
    <message>
        <source>Current: %1</source>
        <translation>Текущая: %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>Refresh Nodes (%1s)</source>
        <translation>Обновить локации (%1 с)</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>Локация: %1</translation>
    </message>
    <message>
        <source>Location: %1 · %2</source>
        <translation>Локация: %1 · %2</translation>
    </message>
    <message>
        <source>Current: %1 (stale)</source>
        <translation>Текущая: %1 (данные устарели)</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Группа</translation>
    </message>
    <message>
        <source>less than 1m</source>
        <translation>меньше 1 мин</translation>
    </message>
    <message>
        <source>%1m</source>
        <translation>%1 мин</translation>
    </message>
    <message>
        <source>%1h</source>
        <translation>%1 ч</translation>
    </message>
    <message>
        <source>%1h %2m</source>
        <translation>%1 ч %2 мин</translation>
    </message>
    <message>
        <source>%1d</source>
        <translation>%1 д</translation>
    </message>
    <message>
        <source>%1d %2h</source>
        <translation>%1 д %2 ч</translation>
    </message>
    <message>
        <source>Tovra: disconnecting...</source>
        <translation>Tovra: отключение...</translation>
    </message>
    <message>
        <source>Tovra: logging out...</source>
        <translation>Tovra: выход из аккаунта...</translation>
    </message>
    <message>
        <source>Tovra: updating system proxy...</source>
        <translation>Tovra: изменение системного прокси...</translation>
    </message>
    <message>
        <source>Tovra: updating local network routing...</source>
        <translation>Tovra: изменение маршрутизации локальной сети...</translation>
    </message>
    <message>
        <source>Tovra: enabling kill switch...</source>
        <translation>Tovra: включение Kill Switch...</translation>
    </message>
    <message>
        <source>Tovra: disabling kill switch...</source>
        <translation>Tovra: выключение Kill Switch...</translation>
    </message>
    <message>
        <source>Tovra: connect failed</source>
        <translation>Tovra: не удалось подключиться</translation>
    </message>
    <message>
        <source>Tovra: disconnect failed</source>
        <translation>Tovra: не удалось отключиться</translation>
    </message>
    <message>
        <source>Logged out</source>
        <translation>Выполнен выход из аккаунта</translation>
    </message>
    <message>
        <source>account operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when signing out failed and the service gave no reason. Word it as a user would understand it: &quot;could not complete the account action&quot;</extracomment>
        <translation>не удалось выполнить действие с аккаунтом</translation>
    </message>
    <message>
        <source>mode operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when changing the mode failed and the service gave no reason. Word it as a user would understand it: &quot;could not change the mode&quot;</extracomment>
        <translation>не удалось сменить режим</translation>
    </message>
    <message>
        <source>Mode updated</source>
        <translation>Режим изменён</translation>
    </message>
    <message>
        <source>System proxy set to %1</source>
        <translation>Системный прокси: %1</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>Обновлено</translation>
    </message>
    <message>
        <source>Kill switch enabled</source>
        <translation>Kill Switch включён</translation>
    </message>
    <message>
        <source>Kill switch disabled</source>
        <translation>Kill Switch выключен</translation>
    </message>
    <message>
        <source>kill-switch operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when turning the kill switch on or off failed and the service gave no reason. Word it as a user would understand it: &quot;could not change the kill switch&quot;</extracomment>
        <translation>не удалось изменить Kill Switch</translation>
    </message>
    <message>
        <source>connected</source>
        <extracomment>Tunnel state after &quot;Tovra: &quot;: the VPN is connected (not connecting)</extracomment>
        <translation>подключено</translation>
    </message>
    <message>
        <source>disconnected</source>
        <translation>отключено</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>подключение</translation>
    </message>
    <message>
        <source>disconnecting</source>
        <translation>отключение</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>готово</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>неизвестно</translation>
    </message>
    <message>
        <source>Tovra: %1</source>
        <translation>Tovra: %1</translation>
    </message>
    <message>
        <source>running</source>
        <translation>работает</translation>
    </message>
    <message>
        <source>Daemon: %1</source>
        <translation>Служба: %1</translation>
    </message>
    <message>
        <source>Daemon: %1 (%2)</source>
        <translation>Служба: %1 (%2)</translation>
    </message>
    <message>
        <source>Account: cached</source>
        <translation>Аккаунт: данные из кэша</translation>
    </message>
    <message>
        <source>Account: Login Required</source>
        <translation>Аккаунт: требуется вход</translation>
    </message>
    <message>
        <source>Account: %1</source>
        <translation>Аккаунт: %1</translation>
    </message>
    <message>
        <source>Account: logged in</source>
        <translation>Аккаунт: вход выполнен</translation>
    </message>
    <message>
        <source>Kill Switch: %1</source>
        <translation>Kill Switch: %1</translation>
    </message>
    <message>
        <source>off</source>
        <comment>system proxy value</comment>
        <translation>выкл.</translation>
    </message>
    <message>
        <source>on</source>
        <comment>system proxy value</comment>
        <translation>вкл.</translation>
    </message>
    <message>
        <source>lock</source>
        <comment>system proxy value</comment>
        <translation>закреплён</translation>
    </message>
    <message>
        <source>%1 · Locked: needs the %2 plan</source>
        <extracomment>A node menu entry the plan does not include: the node, then the plan it needs</extracomment>
        <translation>%1 · Недоступно: нужен тариф %2</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>Could not read the update download status.</source>
        <translation>Не удалось получить состояние скачивания обновления.</translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation>Скачивание отменено.</translation>
    </message>
    <message>
        <source>Could not download the update.</source>
        <translation>Не удалось скачать обновление.</translation>
    </message>
    <message>
        <source>Download complete. Opening the installer...</source>
        <translation>Скачивание завершено. Открытие установщика...</translation>
    </message>
    <message>
        <source>The download link is unavailable.</source>
        <translation>Ссылка для скачивания недоступна.</translation>
    </message>
    <message>
        <source>Could not open the update download link.</source>
        <translation>Не удалось открыть ссылку для скачивания обновления.</translation>
    </message>
    <message>
        <source>The download link opened in your browser. Tovra will not run the installer automatically.</source>
        <translation>Ссылка для скачивания открыта в браузере. Tovra не будет запускать установщик автоматически.</translation>
    </message>
    <message>
        <source>Tovra Update</source>
        <translation>Обновление Tovra</translation>
    </message>
    <message>
        <source>Tovra must be updated before you can connect. Download the installer or exit Tovra.</source>
        <translation>Чтобы подключаться, нужно обновить Tovra. Скачайте установщик или закройте Tovra.</translation>
    </message>
    <message>
        <source>What&apos;s New</source>
        <translation>Что нового</translation>
    </message>
    <message>
        <source>Download progress</source>
        <translation>Ход скачивания</translation>
    </message>
    <message>
        <source>Hide this update</source>
        <extracomment>Button (shown as a link) that stops offering this update</extracomment>
        <translation>Пропустить это обновление</translation>
    </message>
    <message>
        <source>Not Now</source>
        <extracomment>Button that closes the dialog and keeps the update for later</extracomment>
        <translation>Не сейчас</translation>
    </message>
    <message>
        <source>Exit Tovra</source>
        <extracomment>Button that quits Tovra when the update is required</extracomment>
        <translation>Закрыть Tovra</translation>
    </message>
    <message>
        <source>Exit Tovra without updating</source>
        <translation>Закрыть Tovra без обновления</translation>
    </message>
    <message>
        <source>Open Download Link</source>
        <extracomment>Button that opens the installer download page in the browser</extracomment>
        <translation>Открыть ссылку</translation>
    </message>
    <message>
        <source>Open the Tovra update download link</source>
        <translation>Открыть ссылку для скачивания обновления Tovra</translation>
    </message>
    <message>
        <source>A required update is available</source>
        <translation>Доступно обязательное обновление</translation>
    </message>
    <message>
        <source>A new Tovra update is available</source>
        <translation>Доступно новое обновление Tovra</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Неизвестно</translation>
    </message>
    <message>
        <source>Latest</source>
        <translation>Последняя</translation>
    </message>
    <message>
        <source>Current version: %1
Available version: %2</source>
        <translation>Текущая версия: %1
Доступная версия: %2</translation>
    </message>
    <message>
        <source>Release notes are unavailable.</source>
        <translation>Описание выпуска недоступно.</translation>
    </message>
    <message>
        <source>Downloading %1 of %2</source>
        <translation>Скачивание: %1 из %2</translation>
    </message>
    <message>
        <source>Downloading update...</source>
        <translation>Скачивание обновления...</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 МБ</translation>
    </message>
    <message>
        <source>Preparing the download...</source>
        <translation>Подготовка к скачиванию...</translation>
    </message>
    <message>
        <source>Verifying the download...</source>
        <translation>Проверка скачанного файла...</translation>
    </message>
    <message>
        <source>Canceling the download...</source>
        <translation>Отмена скачивания...</translation>
    </message>
    <message>
        <source>Download in Background</source>
        <extracomment>Button that hides the dialog while the installer downloads</extracomment>
        <translation>Скачать в фоне</translation>
    </message>
    <message>
        <source>Download the latest installer without interrupting your current session.</source>
        <translation>Скачать последний установщик, не прерывая текущий сеанс.</translation>
    </message>
    <message>
        <source>Hide this window while the update downloads</source>
        <translation>Скрыть это окно на время скачивания обновления</translation>
    </message>
    <message>
        <source>Canceling...</source>
        <extracomment>Button while the download is being cancelled</extracomment>
        <translation>Отмена...</translation>
    </message>
    <message>
        <source>Cancel the update download</source>
        <translation>Отменить скачивание обновления</translation>
    </message>
    <message>
        <source>Cancel Download</source>
        <extracomment>Button</extracomment>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Opening Installer...</source>
        <extracomment>Button while the downloaded installer opens</extracomment>
        <translation>Открытие установщика...</translation>
    </message>
    <message>
        <source>Retry Download</source>
        <extracomment>Button</extracomment>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Retry the update download</source>
        <translation>Повторить скачивание обновления</translation>
    </message>
    <message>
        <source>Download Update</source>
        <extracomment>Button that downloads and opens the installer</extracomment>
        <translation>Скачать обновление</translation>
    </message>
    <message>
        <source>Download and install the Tovra update</source>
        <translation>Скачать и установить обновление Tovra</translation>
    </message>
    <message>
        <source>Retrying the download...</source>
        <translation>Повторная попытка скачивания...</translation>
    </message>
</context>
<context>
    <name>UpdatesSection</name>
    <message>
        <source>Updates</source>
        <translation>Обновления</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <extracomment>Button</extracomment>
        <translation>Проверить обновления</translation>
    </message>
    <message>
        <source>Tovra for Linux</source>
        <translation>Tovra для Linux</translation>
    </message>
    <message>
        <source>The version of this app.</source>
        <translation>Версия этого приложения.</translation>
    </message>
    <message>
        <source>Ask the Tovra service for a newer version.</source>
        <translation>Запросить у службы Tovra новую версию.</translation>
    </message>
    <message>
        <source>%1 (build %2)</source>
        <translation>%1 (сборка %2)</translation>
    </message>
</context>
<context>
    <name>VpnKillSwitchRow</name>
    <message>
        <source>Kill Switch</source>
        <translation>Kill Switch</translation>
    </message>
</context>
<context>
    <name>VpnPage</name>
    <message>
        <source>Connect</source>
        <extracomment>Button that connects the VPN</extracomment>
        <translation>Подключиться</translation>
    </message>
    <message>
        <source>Sign In</source>
        <extracomment>Button that opens the account page to sign in</extracomment>
        <translation>Войти</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button that stops a connection attempt</extracomment>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <extracomment>Button that disconnects the VPN</extracomment>
        <translation>Отключиться</translation>
    </message>
    <message>
        <source>Disconnecting…</source>
        <extracomment>Button while the VPN disconnects</extracomment>
        <translation>Отключение…</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Service unavailable</source>
        <translation>Служба недоступна</translation>
    </message>
    <message>
        <source>Waiting for the Tovra service to answer.</source>
        <translation>Ожидание ответа службы Tovra.</translation>
    </message>
    <message>
        <source>Signed out</source>
        <translation>Вход не выполнен</translation>
    </message>
    <message>
        <source>Sign in to your Tovra account to connect.</source>
        <translation>Войдите в аккаунт Tovra, чтобы подключиться.</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Локация</translation>
    </message>
    <message>
        <source>Last location</source>
        <translation>Последняя локация</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Подключено</translation>
    </message>
    <message>
        <source>Your traffic goes through the Tovra tunnel.</source>
        <translation>Ваш трафик идёт через туннель Tovra.</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Подключение…</translation>
    </message>
    <message>
        <source>Setting up the tunnel.</source>
        <translation>Создание туннеля.</translation>
    </message>
    <message>
        <source>Connecting to %1</source>
        <translation>Подключение к «%1»</translation>
    </message>
    <message>
        <source>Closing the tunnel.</source>
        <translation>Закрытие туннеля.</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Отключено</translation>
    </message>
    <message>
        <source>Kill Switch blocks traffic until you connect.</source>
        <translation>Kill Switch блокирует трафик, пока вы не подключитесь.</translation>
    </message>
    <message>
        <source>Your traffic is not protected.</source>
        <translation>Ваш трафик не защищён.</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Подключено к «%1»</translation>
    </message>
    <message>
        <source>Connection failed: %1</source>
        <translation>Не удалось подключиться: %1</translation>
    </message>
</context>
<context>
    <name>VpnRecentLocations</name>
    <message>
        <source>Clear</source>
        <extracomment>Button that empties the list of recent locations</extracomment>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Locations you connect to appear here.</source>
        <translation>Здесь появятся локации, к которым вы подключались.</translation>
    </message>
    <message>
        <source>Recent locations</source>
        <translation>Недавние локации</translation>
    </message>
    <message>
        <source>Clear recent locations</source>
        <translation>Очистить недавние локации</translation>
    </message>
    <message>
        <source>Connect to %1</source>
        <translation>Подключиться к «%1»</translation>
    </message>
</context>
<context>
    <name>VpnStatusCard</name>
    <message>
        <source>Connected for %1</source>
        <translation>Время подключения: %1</translation>
    </message>
    <message>
        <source>Mode: %1</source>
        <translation>Режим: %1</translation>
    </message>
</context>
<context>
    <name>WindowController</name>
    <message>
        <source>Could not open link</source>
        <translation>Не удалось открыть ссылку</translation>
    </message>
    <message>
        <source>Log directory is unavailable</source>
        <translation>Папка журналов недоступна</translation>
    </message>
    <message>
        <source>Log directory does not exist: %1</source>
        <translation>Папка журналов не существует: %1</translation>
    </message>
    <message>
        <source>Could not open log directory: %1</source>
        <translation>Не удалось открыть папку журналов: %1</translation>
    </message>
    <message>
        <source>Account operation failed</source>
        <extracomment>Shown when signing in or out failed without a reason. Word it as a user would understand it: &quot;Could not complete the account action&quot;</extracomment>
        <translation>Не удалось выполнить действие с аккаунтом</translation>
    </message>
</context>
<context>
    <name>WindowShortcuts</name>
    <message>
        <source>Ctrl+1</source>
        <extracomment>Keyboard shortcut, in Qt&apos;s key names: keep it unless the key is awkward to reach</extracomment>
        <translation>Ctrl+1</translation>
    </message>
    <message>
        <source>Show the VPN page</source>
        <translation>Показать страницу VPN</translation>
    </message>
    <message>
        <source>Ctrl+2</source>
        <translation>Ctrl+2</translation>
    </message>
    <message>
        <source>Show the Locations page</source>
        <translation>Показать страницу «Локации»</translation>
    </message>
    <message>
        <source>Ctrl+3</source>
        <translation>Ctrl+3</translation>
    </message>
    <message>
        <source>Show the Mode page</source>
        <translation>Показать страницу «Режим»</translation>
    </message>
    <message>
        <source>Ctrl+4</source>
        <translation>Ctrl+4</translation>
    </message>
    <message>
        <source>Show the Settings page</source>
        <translation>Показать страницу «Настройки»</translation>
    </message>
    <message>
        <source>Ctrl+5</source>
        <translation>Ctrl+5</translation>
    </message>
    <message>
        <source>Show the Account page</source>
        <translation>Показать страницу «Аккаунт»</translation>
    </message>
    <message>
        <source>Search: the quick connect field on the VPN page, the list on the Locations page</source>
        <translation>Поиск: поле быстрого подключения на странице VPN, список на странице «Локации»</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <extracomment>Keyboard shortcut, in Qt&apos;s key names: keep it unless the key is awkward to reach</extracomment>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>Refresh locations</source>
        <translation>Обновить локации</translation>
    </message>
    <message>
        <source>Close the window; Tovra stays in the tray</source>
        <translation>Закрыть окно; Tovra остаётся в системном трее</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>Quit Tovra</source>
        <translation>Выйти из Tovra</translation>
    </message>
    <message>
        <source>Close a list, menu or dialog</source>
        <translation>Закрыть список, меню или диалог</translation>
    </message>
    <message>
        <source>Show these keyboard shortcuts</source>
        <translation>Показать эти сочетания клавиш</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>A control&apos;s tool tip: what it does, then its keyboard shortcut</extracomment>
        <translation>%1 (%2)</translation>
    </message>
</context>
</TS>

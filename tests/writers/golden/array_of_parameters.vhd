--==== top.vhd ====
--top bit pair six
--


-- (legal notice)




--stage HELD=1 d q
--

--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top_mgka1 IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (1 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (1 DOWNTO 0)
	 ); 
 END top_mgka1;

 ARCHITECTURE RTL OF top_mgka1 IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_st_w_lg_d1w	:	STD_LOGIC_VECTOR (1 DOWNTO 0);
	 SIGNAL  wire_st_w_lg_w_lg_d1w2w	:	STD_LOGIC_VECTOR (1 DOWNTO 0);
	 SIGNAL  en	:	STD_LOGIC;
	 SIGNAL  keep :	STD_LOGIC_VECTOR (1 DOWNTO 0);
 BEGIN

	loop0 : FOR i IN 0 TO 1 GENERATE 
		wire_st_w_lg_d1w(i) <= d(i) AND keep(i);
	END GENERATE loop0;
	loop1 : FOR i IN 0 TO 1 GENERATE 
		wire_st_w_lg_w_lg_d1w2w(i) <= wire_st_w_lg_d1w(i) XOR en;
	END GENERATE loop1;
	en <= '1';
	keep <= "10";
	q <= wire_st_w_lg_w_lg_d1w2w;

 END RTL; --top_mgka1


--stage HELD=2 d q
--

--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top_mgla1 IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (1 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (1 DOWNTO 0)
	 ); 
 END top_mgla1;

 ARCHITECTURE RTL OF top_mgla1 IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_st_w_lg_d3w	:	STD_LOGIC_VECTOR (1 DOWNTO 0);
	 SIGNAL  wire_st_w_lg_w_lg_d3w4w	:	STD_LOGIC_VECTOR (1 DOWNTO 0);
	 SIGNAL  en	:	STD_LOGIC;
	 SIGNAL  keep :	STD_LOGIC_VECTOR (1 DOWNTO 0);
 BEGIN

	loop2 : FOR i IN 0 TO 1 GENERATE 
		wire_st_w_lg_d3w(i) <= d(i) AND keep(i);
	END GENERATE loop2;
	loop3 : FOR i IN 0 TO 1 GENERATE 
		wire_st_w_lg_w_lg_d3w4w(i) <= wire_st_w_lg_d3w(i) XOR en;
	END GENERATE loop3;
	en <= '1';
	keep <= "01";
	q <= wire_st_w_lg_w_lg_d3w4w;

 END RTL; --top_mgla1


--stage HELD=1 d en q
--

--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top_mg7i1 IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (1 DOWNTO 0);
		 en	:	IN  STD_LOGIC := '1';
		 q	:	OUT  STD_LOGIC_VECTOR (1 DOWNTO 0)
	 ); 
 END top_mg7i1;

 ARCHITECTURE RTL OF top_mg7i1 IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_st_w_lg_d5w	:	STD_LOGIC_VECTOR (1 DOWNTO 0);
	 SIGNAL  wire_st_w_lg_w_lg_d5w6w	:	STD_LOGIC_VECTOR (1 DOWNTO 0);
	 SIGNAL  keep :	STD_LOGIC_VECTOR (1 DOWNTO 0);
 BEGIN

	loop4 : FOR i IN 0 TO 1 GENERATE 
		wire_st_w_lg_d5w(i) <= d(i) AND keep(i);
	END GENERATE loop4;
	loop5 : FOR i IN 0 TO 1 GENERATE 
		wire_st_w_lg_w_lg_d5w6w(i) <= wire_st_w_lg_d5w(i) XOR en;
	END GENERATE loop5;
	keep <= "10";
	q <= wire_st_w_lg_w_lg_d5w6w;

 END RTL; --top_mg7i1

--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top IS 
	 PORT 
	 ( 
		 bit	:	IN  STD_LOGIC;
		 pair	:	IN  STD_LOGIC_VECTOR (1 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (5 DOWNTO 0);
		 six	:	IN  STD_LOGIC_VECTOR (5 DOWNTO 0)
	 ); 
 END top;

 ARCHITECTURE RTL OF top IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_st_d	:	STD_LOGIC_VECTOR (5 DOWNTO 0);
	 SIGNAL  wire_st_q	:	STD_LOGIC_VECTOR (5 DOWNTO 0);
	 COMPONENT  top_mgka1
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(1 DOWNTO 0);
		q	:	OUT  STD_LOGIC_VECTOR(1 DOWNTO 0)
	 ); 	 END COMPONENT;
	 COMPONENT  top_mgla1
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(1 DOWNTO 0);
		q	:	OUT  STD_LOGIC_VECTOR(1 DOWNTO 0)
	 ); 	 END COMPONENT;
	 COMPONENT  top_mg7i1
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(1 DOWNTO 0);
		en	:	IN  STD_LOGIC := '1';
		q	:	OUT  STD_LOGIC_VECTOR(1 DOWNTO 0)
	 ); 	 END COMPONENT;
 BEGIN

	q <= wire_st_q;
	wire_st_d <= six;
	st_0 :  top_mgka1
	  PORT MAP ( 
		d => wire_st_d(1 DOWNTO 0),
		q => wire_st_q(1 DOWNTO 0)
	  );
	st_1 :  top_mgla1
	  PORT MAP ( 
		d => wire_st_d(3 DOWNTO 2),
		q => wire_st_q(3 DOWNTO 2)
	  );
	st_2 :  top_mg7i1
	  PORT MAP ( 
		d => wire_st_d(5 DOWNTO 4),
		en => bit,
		q => wire_st_q(5 DOWNTO 4)
	  );

 END RTL; --top
--VALID FILE
